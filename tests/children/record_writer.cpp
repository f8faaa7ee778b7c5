// Appends one pass to a record and says what became of it: "written", or why it was not.
//   record_writer PATH LINE
#include "adapters/passes/sqlite_pass_store.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"

#include <QCoreApplication>

#include <cstdio>

using namespace kelvo;

int main(int argc, char** argv) {
    // Qt 6.8 opens no database without one.
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(QString::fromLocal8Bit(argv[1]), mainQueue, console);
    PassRecord record;
    record.began = QDateTime::currentDateTimeUtc();
    record.lastLine = QString::fromLocal8Bit(argv[2]);
    store.append(record);
    const QString reason = store.finish();
    std::puts(reason.isEmpty() ? "written" : qPrintable(reason));
    return 0;
}
