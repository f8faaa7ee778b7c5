// Writes settings as fast as it can, to be killed, or a number of keys beside other writers; or
// looks what it knows of a file that fails as long as another one is there; or works on the bare
// file and says how that went.
//   settings_writer replace PATH
//   settings_writer aside PATH
//   settings_writer lock PATH
//   settings_writer generations PATH
//   settings_writer keys PATH PREFIX COUNT
//   settings_writer look PATH OTHER
#include "adapters/settings/plist_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preferences.h"

#include <unistd.h>

#include <cstdio>
#include <string_view>

using namespace kelvo;

namespace {

/// A generation of the pair "left" and "right": the number and a text that repeats it.
QVariant generationValue(qint64 generation) {
    return QString::number(generation).rightJustified(12, u'0').repeated(1500);
}

void writeGenerations(UserDefaults& defaults) {
    const QString stored = defaults.stringForKey(u"right").value_or(QString());
    qint64 generation =
        QStringView(stored).first(std::min<qsizetype>(12, stored.size())).toLongLong();
    for (bool said = false;; said = true) {
        ++generation;
        defaults.setObject(u"left", generationValue(generation));
        defaults.setObject(u"right", generationValue(generation));
        defaults.synchronize();
        if (!said) {
            std::puts("writing");
            std::fflush(stdout);
        }
    }
}

void writeKeys(UserDefaults& defaults, const QString& prefix, int count) {
    for (int number = 0; number < count; ++number) {
        const QString key = prefix + QString::number(number);
        defaults.setObject(key, number);
        if (number % 5 == 4)
            defaults.synchronize();
    }
}

void say(const char* when, const UserDefaults& defaults) {
    std::printf("%s: %s, theirs %lld\n", when, defaults.areKnown() ? "known" : "not known",
                static_cast<long long>(defaults.integerForKey(u"theirs")));
}

void look(UserDefaults& defaults, VirtualMainQueue& mainQueue, const char* other) {
    say("at first", defaults);
    defaults.setObject(u"mine", 2);
    defaults.synchronize();
    mainQueue.runDue();
    say("after a change", defaults);
    ::unlink(other);
    defaults.synchronize();
    mainQueue.runDue();
    say("at last", defaults);
}

/// What became of it, in a line.
QString bareWork(std::string_view mode, PlistFile file) {
    const auto said = [](const QString& failure) {
        return failure.isEmpty() ? QStringLiteral("done") : failure;
    };
    if (mode == "replace")
        return said(file.replace(QByteArray(5000, 'n')));
    if (mode == "aside")
        return said(file.moveAside(QDateTime(QDate(2026, 3, 1), QTime(4, 5, 6), Qt::UTC)).second);
    const auto [held, failure] = file.lock(std::chrono::seconds(5));
    if (!held)
        return failure;
    return PlistFile(file.path()).lock({}).first ? QStringLiteral("another one has it too")
                                                 : QStringLiteral("done");
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    const std::string_view mode = argv[1];
    if (mode == "replace" || mode == "aside" || mode == "lock") {
        std::puts(qPrintable(bareWork(mode, PlistFile(QString::fromLocal8Bit(argv[2])))));
        return 0;
    }
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    PlistDefaults defaults(QString::fromLocal8Bit(argv[2]), DamagedFile::IsSetAside, isState,
                           mainQueue, console);
    if (mode == "generations" && argc == 3)
        writeGenerations(defaults);
    if (mode == "look" && argc == 4)
        look(defaults, mainQueue, argv[3]);
    else if (mode == "keys" && argc == 5)
        writeKeys(defaults, QString::fromLocal8Bit(argv[3]), QByteArray(argv[4]).toInt());
    else
        return 2;
    defaults.synchronize();
    for (const QString& line : console.logged())
        std::fprintf(stderr, "%s\n", qPrintable(line));
    return console.logged().isEmpty() ? 0 : 1;
}
