#include <QApplication>
#include <QWidget>

// The least that a Qt program with a window of the main window's size can be.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setObjectName(QStringLiteral("frmMainMenu"));
    window.setWindowTitle(QStringLiteral("Main Menu"));
    window.resize(704, 385);
    window.show();
    return QApplication::exec();
}
