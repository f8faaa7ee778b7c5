// The floor that the program without a window is measured against: a line, then an event loop with
// nothing in it.
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::puts("begun");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
