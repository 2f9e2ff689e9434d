#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

#include "widgets/pictures.h"

namespace torvane {
namespace {

double luminance(QRgb colour) {
    const auto part = [](int value) { return std::pow(value / 255.0, 2.2); };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour)) + 0.05;
}

// The part of the picture's dots, at button size, that stand out clearly from the ground.
double shareSeen(QSvgRenderer& picture, const QColor& ground) {
    QImage drawn(20, 20, QImage::Format_RGB32);
    drawn.fill(ground);
    QPainter painter(&drawn);
    picture.render(&painter, QRectF(0, 0, 20, 20));
    painter.end();
    int seen = 0;
    for (int dot = 0; dot < 400; ++dot)
        seen +=
            std::abs(std::log(luminance(drawn.pixel(dot % 20, dot / 20)) / luminance(ground.rgb()))) >= std::log(2.2);
    return seen / 400.0;
}

TEST(Pictures, EachDrawingIsThereAndCanBeSeenOnLightAndDark) {
    EXPECT_FALSE(picture("program").isNull());
    EXPECT_TRUE(picture("no such picture").isNull());
    const QStringList files = QDir(TORVANE_ART).entryList({"*.svg"}, QDir::Files);
    EXPECT_EQ(QDir(":/art").entryList(), files) << "each drawing is listed";
    for (const QString& file : files) {
        QSvgRenderer drawing(":/art/" + file);
        EXPECT_TRUE(drawing.isValid()) << qPrintable(file);
        if (file.startsWith("image")) continue;
        EXPECT_GE(shareSeen(drawing, QColor("#f0f0f0")), 0.06) << qPrintable(file);
        EXPECT_GE(shareSeen(drawing, QColor("#2b2b2b")), 0.06) << qPrintable(file);
    }
}

}  // namespace
}  // namespace torvane

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&count, arguments);
    const QGuiApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
