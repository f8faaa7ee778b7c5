#include "ui/activity_texts.h"

#include "support/plain_line.h"
#include "ui/pass_words.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace kelvo {
namespace {

bool isWell(const PassRecord& pass) {
    return pass.cause == PassCause::Well;
}

QString withSize(const QString& files, const Transfer& transfer) {
    const QString size = sizeText(transfer);
    return size.isEmpty() ? files : QString(files + u", " + size);
}

/// ssh ends its lines as a terminal in raw mode wants them.
QString shownOutput(QString text) {
    return withVisibleControls(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

QString statusText(const CommandRecord& command) {
    return command.exitStatus ? QString(u"exit status " + QString::number(*command.exitStatus))
                              : QStringLiteral("given up when the program ended");
}

QString sourceText(const Transfer& transfer) {
    switch (transfer.source) {
    case TransferSource::Statistics:
        return QStringLiteral("by rsync's own figures");
    case TransferSource::Lines:
        return QStringLiteral("counted from its lines");
    case TransferSource::Unknown:
        break;
    }
    return QStringLiteral("the command did not say");
}

QString commandReport(const CommandRecord& command) {
    QString report = u"$ " + withVisibleControls(command.command) + u"\n(" + statusText(command) +
                     u", " + secondsText(command.seconds);
    if (command.role == CommandRole::Pull)
        report += u", " + withSize(filesText(command.transfer), command.transfer) + u", " +
                  sourceText(command.transfer);
    report += u")\n" + shownOutput(command.text.head);
    if (command.text.leftOut > 0)
        report += u"\n… " + QString::number(command.text.leftOut) + u" bytes left out …\n" +
                  shownOutput(command.text.tail);
    return report.endsWith(u'\n') ? report : QString(report + u'\n');
}

QString cell(QString text) {
    static constexpr QStringView cFormula = u"=+-@\t\r";
    if (!text.isEmpty() && cFormula.contains(text[0]))
        text.prepend(u'\'');
    if (text.contains(u'"') || text.contains(u',') || text.contains(u'\n') || text.contains(u'\r'))
        return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
    return text;
}

QString numberCell(const std::optional<qint64>& number) {
    return number ? QString::number(*number) : QString();
}

} // namespace

QString beganText(const PassRecord& pass) {
    return QLocale().toString(pass.began.toLocalTime(), QLocale::ShortFormat);
}

QString activityHeadline(std::span<const PassRecord> records, const QDateTime& now) {
    if (records.empty())
        return QStringLiteral("No pass yet.");
    const auto success = std::ranges::find_if(records, isWell);
    QString line = QStringLiteral("No success yet.");
    if (success != records.end())
        line = u"Last success: " +
               agoText(static_cast<double>(success->began.msecsTo(now)) / 1000) + u", " +
               filesText(success->transfer) + u'.';
    if (success == records.begin())
        return line;
    const PassRecord& since = *(success - 1);
    const CauseWords words = wordsFor(records.front().cause);
    return line + u" In trouble since " + beganText(since) + u": " +
           withVisibleControls(sentenceFor(records.front())) + u' ' + words.nextStep;
}

QString passReport(const PassRecord& pass) {
    const CauseWords words = wordsFor(pass.cause);
    QString report = beganText(pass) + u" – " + withVisibleControls(sentenceFor(pass)) + u'\n';
    if (!words.nextStep.isEmpty())
        report += u"Next step: " + words.nextStep + u'\n';
    report += (pass.kind == PassKind::Remote ? QStringLiteral("Remote pass, ")
                                             : QStringLiteral("Plain pass, ")) +
              withSize(filesText(pass), pass.transfer) + u", " + secondsText(pass.seconds) + u'\n';
    for (const CommandRecord& command : pass.commands)
        report += u'\n' + commandReport(command);
    return report;
}

QString passesAsCsv(std::span<const PassRecord> records) {
    QStringList lines{QStringLiteral("began,kind,cause,outcome,files,bytes,seconds,last line")};
    for (const PassRecord& pass : records) {
        const CauseWords words = wordsFor(pass.cause);
        lines.append(QStringList{
            pass.began.toString(Qt::ISODate),
            pass.kind == PassKind::Remote ? QStringLiteral("remote") : QStringLiteral("plain"),
            words.name.toString(), cell(words.sentence.toString()), numberCell(pass.transfer.files),
            numberCell(pass.transfer.bytes), QString::number(pass.seconds, 'f', 3),
            cell(withVisibleControls(pass.lastLine))}
                         .join(u','));
    }
    return lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}

} // namespace kelvo
