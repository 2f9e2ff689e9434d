#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>
#include <QWidget>

// The least that a Qt program with a window of the main window's size can be; with an argument, the least that one with
// a menu bar and a line of text can be.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setObjectName(QStringLiteral("frmMainMenu"));
    window.setWindowTitle(QStringLiteral("Main Menu"));
    window.resize(704, 385);
    if (argc > 1) {
        auto* layout = new QVBoxLayout(&window);
        auto* bar = new QMenuBar(&window);
        layout->addWidget(bar);
        for (const char* menu : {"File", "Tables", "Estimates", "Calculators", "Reports", "Notes", "Help", "Exit"})
            bar->addMenu(QString::fromLatin1(menu))->addAction(QStringLiteral("Entry"));
        layout->addWidget(new QLabel(QStringLiteral("A line of text"), &window));
    }
    window.show();
    return QApplication::exec();
}
