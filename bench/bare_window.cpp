// The floor that the program's window is measured against: a window with a tab widget, nothing
// else.
#include <QApplication>
#include <QMainWindow>
#include <QTabWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    auto* tabs = new QTabWidget;
    for (const char* title : {"One", "Two", "Three", "Four"})
        tabs->addTab(new QWidget, QString::fromLatin1(title));
    window.setCentralWidget(tabs);
    window.resize(760, 600);
    window.show();
    return QApplication::exec();
}
