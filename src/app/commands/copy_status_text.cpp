// A status as lines for people: what stands in it comes from another program.
#include "app/commands/copy_status.h"
#include "app/commands/passes.h"
#include "support/plain_line.h"
#include "ui/pass_words.h"

#include <QJsonArray>

#include <algorithm>

namespace kelvo {
namespace {

struct NamedText {
    QStringView name;
    QStringView text;
};

constexpr NamedText cStates[] = {
    {u"off", u"syncing is off"},
    {u"missing", u"waiting for what is missing"},
    {u"running", u"a pass runs"},
    {u"finishing", u"syncing is off; the pass that runs is the last one"},
    {u"cancelling", u"the pass is being cancelled"},
    {u"resting", u"resting"},
    {u"not-running", u"no copy is running"},
};

constexpr NamedText cMissing[] = {
    {u"mac", u"a Mac"},
    {u"account", u"the user name on the Mac"},
    {u"key", u"a key that the Mac accepts"},
    {u"source", u"a source folder"},
    {u"destination", u"a destination folder that can be written"},
    {u"tools", u"rsync or ssh on this machine"},
};

template <std::size_t Size>
QStringView textFor(const NamedText (&words)[Size], QStringView name) {
    const auto* const found = std::ranges::find(words, name, &NamedText::name);
    return found == std::end(words) ? QStringView() : found->text;
}

struct NamedStep {
    QStringView name;
    PassStep step;
};
constexpr NamedStep cSteps[] = {
    {u"asking-the-mac", PassStep::AskingTheMac},
    {u"pull", PassStep::Pull},
    {u"movies", PassStep::Movies},
    {u"after-arrivals", PassStep::AfterArrivals},
};

QString textAt(const QJsonObject& object, QStringView member) {
    return oneLine(object.value(member).toString());
}

QDateTime momentAt(const QJsonObject& object, QStringView member) {
    return QDateTime::fromString(object.value(member).toString(), Qt::ISODateWithMs);
}

/// What is negative is no figure of a pass.
std::optional<double> figureAt(const QJsonObject& object, QStringView member) {
    const double number = object.value(member).toDouble(-1);
    return number >= 0 ? std::optional(number) : std::nullopt;
}

std::optional<qint64> countAt(const QJsonObject& object, QStringView member) {
    const qint64 number = object.value(member).toInteger(-1);
    return number >= 0 ? std::optional(number) : std::nullopt;
}

QString passText(const QJsonObject& pass) {
    PassRecord record;
    record.kind = pass.value(u"kind").toString() == u"remote" ? PassKind::Remote : PassKind::Plain;
    record.verdict = HostVerdict::fromText(pass.value(u"verdict").toString());
    record.transfer.files = countAt(pass, u"files");
    record.transfer.bytes = countAt(pass, u"bytes");
    QStringList figures{filesText(record), sizeText(record.transfer),
                        secondsText(figureAt(pass, u"seconds").value_or(0))};
    figures.removeAll(QString());
    return localTimeText(momentAt(pass, u"began")) + u"  " + textAt(pass, u"message") + u" (" +
           figures.join(QStringLiteral(", ")) + u')';
}

/// Lines of a name and a text, the texts below each other; without a text there is no line.
class Table {
public:
    void add(QStringView name, const QString& text) {
        constexpr qsizetype cColumn = 15;
        if (!text.isEmpty())
            fText += QString(name + u':').leftJustified(cColumn) + text + u'\n';
    }
    const QString& text() const { return fText; }

private:
    QString fText;
};

void addTroubles(Table& table, const QJsonObject& status) {
    const QJsonArray troubles = status.value(u"troubles").toArray();
    for (const auto& each : troubles) {
        const QJsonObject trouble = each.toObject();
        table.add(u"Trouble", textAt(trouble, u"message"));
        table.add(u"Next step", textAt(trouble, u"nextStep"));
    }
    const QDateTime since = momentAt(status, u"troubleSince");
    const auto passes = countAt(status, u"passesInTrouble");
    if (!troubles.isEmpty() && since.isValid() && passes && *passes > 0)
        table.add(u"Since", localTimeText(since) +
                                (*passes == 1 ? QStringLiteral(" (1 pass)")
                                              : QStringLiteral(" (%1 passes)").arg(*passes)));
}

QString copyText(const QJsonObject& status) {
    const QString version = textAt(status, u"version");
    if (version.isEmpty())
        return {};
    QString text = u"Kelvo Mirror " + version;
    if (const auto process = countAt(status, u"process"))
        text += u", process " + QString::number(*process);
    if (const QDateTime since = momentAt(status, u"since"); since.isValid())
        text += u", since " + localTimeText(since);
    return text + (status.value(u"window").toBool() ? u", with a window" : u", without a window");
}

} // namespace

QString stateText(const QJsonObject& status) {
    const QString name = textAt(status, u"state");
    const QStringView text = textFor(cStates, name);
    return text.isEmpty() ? name : text.toString();
}

QString healthText(const QJsonObject& status) {
    const QJsonArray troubles = status.value(u"troubles").toArray();
    if (!troubles.isEmpty()) {
        const QJsonObject trouble = troubles.first().toObject();
        return QString(textAt(trouble, u"message") + u' ' + textAt(trouble, u"nextStep")).trimmed();
    }
    return status.value(u"health").toString() == u"well"
               ? wordsFor(PassCause::Well).sentence.toString()
               : QString();
}

QString progressText(const QJsonObject& pass) {
    PassUnderWay seen;
    seen.kind = pass.value(u"kind").toString() == u"remote" ? PassKind::Remote : PassKind::Plain;
    const QString step = pass.value(u"step").toString();
    const auto* const named = std::ranges::find(cSteps, QStringView(step), &NamedStep::name);
    seen.progress = {.step = named == std::end(cSteps) ? PassStep::Begun : named->step,
                     .file = pass.value(u"file").toString(),
                     .filesDone = countAt(pass, u"filesDone"),
                     .filesKnown = countAt(pass, u"filesKnown"),
                     .bytesDone = countAt(pass, u"bytesDone"),
                     .bytesKnown = countAt(pass, u"bytesKnown"),
                     .share = figureAt(pass, u"share"),
                     .bytesPerSecond = figureAt(pass, u"bytesPerSecond"),
                     .secondsLeft = figureAt(pass, u"secondsLeft")};
    WorkState work;
    TimeLeftWords timeLeft;
    describeProgress(work, seen, timeLeft);
    return progressLine(work);
}

QString statusText(const QJsonObject& status, const QDateTime& now) {
    Table table;
    table.add(u"State", stateText(status));
    QStringList missing;
    for (const auto& each : status.value(u"missing").toArray())
        missing.append(textFor(cMissing, each.toString()).toString());
    missing.removeAll(QString());
    table.add(u"Missing", missing.join(QStringLiteral(", ")));
    table.add(u"Pass", progressText(status.value(u"pass").toObject()));
    if (const QDateTime next = momentAt(status, u"nextPass"); next.isValid())
        table.add(u"Next pass",
                  u"in " + secondsText(static_cast<double>(std::max<qint64>(now.secsTo(next), 0))));
    addTroubles(table, status);
    if (const QJsonObject last = status.value(u"lastPass").toObject(); !last.isEmpty())
        table.add(u"Last pass", passText(last));
    if (const QDateTime success = momentAt(status.value(u"lastSuccess").toObject(), u"began");
        success.isValid())
        table.add(u"Last success", localTimeText(success) + u", " +
                                       agoText(static_cast<double>(success.secsTo(now))));
    table.add(u"Program", copyText(status));
    return table.text();
}

} // namespace kelvo
