// The rows that need no widgets.
#include "bench/table.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    using namespace kelvo::bench;
    const QCoreApplication application(argc, argv);
    return printTable({settingsRow(),  templateRow(),  captureRow(),  linesRow(),
                       stallRow(),     floodRow(),     passRow(),     onceRow(),
                       filesRow(),     manyFilesRow(), sharingRow(),  manySharingRow(),
                       firstPullRow(), restRow(),      headlessRow(), filterRow(),
                       snapshotRow(),  relaunchRow(),  sentinelRow(), startRow(),
                       memoryRow(),    idleRow(),      recordRow(),   progressRow()},
                      std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
}
