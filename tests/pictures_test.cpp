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
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double contrast(QRgb one, QRgb other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

// The part of the picture's dots, at button size, that stand out clearly from the ground.
double shareSeen(QSvgRenderer& picture, const QColor& ground) {
    QImage drawn(20, 20, QImage::Format_RGB32);
    drawn.fill(ground);
    QPainter painter(&drawn);
    picture.render(&painter, QRectF(0, 0, 20, 20));
    painter.end();
    int seen = 0;
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) seen += contrast(drawn.pixel(x, y), ground.rgb()) >= 2.2;
    return seen / 400.0;
}

TEST(Pictures, EveryNameThatWindowsUseIsThereAndCanBeSeenOnLightAndDark) {
    for (const char* name : {"files", "masters",  "estimates",  "calculators", "reports",      "notes",    "exit",
                             "new",   "add",      "edit",       "delete",      "copy",         "select",   "save",
                             "ok",    "cancel",   "apply",      "search",      "all",          "previous", "next",
                             "help",  "print",    "close",      "zoom-in",     "zoom-out",     "export",   "calculator",
                             "sheet", "customer", "first-page", "last-page",   "notes-import", "program"}) {
        ASSERT_FALSE(torvane::picture(name).isNull()) << name;
        QSvgRenderer picture(QString(":/art/%1.svg").arg(name));
        ASSERT_TRUE(picture.isValid()) << name;
        EXPECT_EQ(picture.defaultSize().width(), picture.defaultSize().height()) << name;
        EXPECT_GE(shareSeen(picture, QColor("#f0f0f0")), 0.06) << name;
        EXPECT_GE(shareSeen(picture, QColor("#2b2b2b")), 0.06) << name;
    }
    for (const QString& file : QDir(":/art").entryList()) {
        QSvgRenderer picture(":/art/" + file);
        EXPECT_TRUE(picture.isValid()) << file.toStdString();
    }
    EXPECT_EQ(QDir(":/art").entryList(), QDir(TORVANE_ART).entryList({"*.svg"}, QDir::Files))
        << "each drawing is listed";
    EXPECT_EQ(QSvgRenderer(QString(":/art/image1.svg")).defaultSize(), QSize(480, 300));
    EXPECT_EQ(QSvgRenderer(QString(":/art/image2.svg")).defaultSize(), QSize(240, 300));
}

}  // namespace
}  // namespace torvane

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&count, arguments);
    const QGuiApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
