// The conversions program: one small window, no files.

#include <QApplication>

#include "conversions/screens/conversion_window.h"
#include "widgets/pictures.h"
#include "widgets/style.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    torvane::applyStyle(application);
    QApplication::setWindowIcon(torvane::picture(QStringLiteral("calculator")));
    torvane::ConversionWindow window;
    window.show();
    return QApplication::exec();
}
