#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>

#include "widgets/pictures.h"

namespace torvane {
namespace {

TEST(Pictures, EachDrawingIsThereAndCanBeSeenOnLightAndDark) {
    EXPECT_TRUE(picture("no such picture").isNull());
    for (const QString& file : QDir(TORVANE_ART).entryList({"*.svg"}, QDir::Files)) {
        const QIcon drawing = picture(file.chopped(4));
        for (const QRgb ground : {0xf0f0f0U, 0x2b2b2bU}) {
            QImage drawn(20, 20, QImage::Format_RGB32);
            drawn.fill(ground);
            QPainter painter(&drawn);
            drawing.paint(&painter, drawn.rect());
            painter.end();
            int seen = 0;
            for (int dot = 0; dot < 400; ++dot)
                seen += std::abs(qGray(drawn.pixel(dot % 20, dot / 20)) - qGray(ground)) > 50;
            EXPECT_GT(seen, 24) << qPrintable(file);
        }
    }
}

}  // namespace
}  // namespace torvane
