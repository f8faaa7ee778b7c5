// The rows that show widgets. They are a program of their own, for one that has the widget
// libraries loaded would share their memory with the programs that the row "memory" measures.
#include "bench/table.h"

#include <QApplication>

int main(int argc, char** argv) {
    using namespace kelvo::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return printTable({activityRow()}, std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
}
