#include "ui/activity_texts.h"

#include "support/plain_line.h"
#include "ui/pass_words.h"
#include "ui/words.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace kelvo {
namespace {

constexpr std::size_t cMostListed = 1000; // files in a report

QString moviesText(qint64 movies) {
    return Words::counted("%Ln movie", QT_TRANSLATE_N_NOOP("Words", "%Ln movies"), movies);
}

/// UTF-8 as it is, any other byte as "\xff".
QString decoded(const QByteArray& bytes) {
    QString whole = QString::fromUtf8(bytes);
    if (whole.toUtf8() == bytes)
        return whole;
    QString text;
    for (qsizetype at = 0; at < bytes.size();) {
        // A character has four bytes at most.
        QByteArray character;
        for (qsizetype length = 1; length <= 4 && character.isEmpty(); ++length) {
            const QByteArray piece = bytes.mid(at, length);
            if (QString::fromUtf8(piece).toUtf8() == piece)
                character = piece;
        }
        if (character.isEmpty())
            text += QStringLiteral("\\x%1").arg(uint(uchar(bytes[at])), 2, 16, QLatin1Char('0'));
        else
            text += QString::fromUtf8(character);
        at += std::max<qsizetype>(1, character.size());
    }
    return text;
}

QString withSize(const QString& files, const Transfer& transfer) {
    const QString size = sizeText(transfer);
    return size.isEmpty() ? files : Words::listed({files, size});
}

/// ssh ends its lines as a terminal in raw mode wants them.
QString shownOutput(QString text) {
    return withVisibleControls(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

QString statusText(const CommandRecord& command, PassCause cause) {
    if (command.exitStatus)
        return Words::tr("exit status %1").arg(*command.exitStatus);
    return cause == PassCause::Cancelled ? Words::tr("ended when the pass was cancelled")
                                         : Words::tr("given up when the program ended");
}

QString sourceText(const Transfer& transfer) {
    switch (transfer.source) {
    case TransferSource::Statistics:
        return Words::tr("by rsync's own figures");
    case TransferSource::Lines:
        return Words::tr("counted from its lines");
    case TransferSource::Unknown:
        break;
    }
    return Words::tr("the command did not say");
}

QString commandReport(const CommandRecord& command, PassCause cause) {
    QString report = command.role == CommandRole::AfterArrivals
                         ? QString(Words::tr("Run after arrivals:") + u'\n')
                         : QString();
    QStringList facts{statusText(command, cause), secondsText(command.seconds)};
    if (command.role == CommandRole::Pull)
        facts << withSize(filesText(command.transfer), command.transfer)
              << sourceText(command.transfer);
    report += u"$ " + withVisibleControls(command.command) + u"\n(" + Words::listed(facts) +
              u")\n" + shownOutput(command.text.head);
    if (command.text.leftOut > 0)
        report += u'\n' +
                  (command.text.leftOut == 1
                       ? Words::tr("… 1 byte left out …")
                       : Words::tr("… %L1 bytes left out …").arg(command.text.leftOut)) +
                  u'\n' + shownOutput(command.text.tail);
    return report.endsWith(u'\n') ? report : QString(report + u'\n');
}

QString arrivalsReport(const std::vector<Arrival>& arrivals) {
    if (arrivals.empty())
        return {};
    QString report = u'\n' + Words::tr("Arrived:") + u'\n';
    for (const Arrival& arrival : std::span(arrivals).first(std::min(arrivals.size(), cMostListed)))
        report +=
            u"  " + Words::listed({arrivedName(arrival.path, {}), bytesText(arrival.size)}) + u'\n';
    if (arrivals.size() > cMostListed)
        report += u"  " +
                  Words::counted("… and %Ln more", QT_TRANSLATE_N_NOOP("Words", "… and %Ln more"),
                                 static_cast<qint64>(arrivals.size() - cMostListed)) +
                  u'\n';
    return report;
}

QString cell(QStringView content) {
    static constexpr QStringView cFormula = u"=+-@\t";
    QString text = withVisibleControls(content);
    if (!text.isEmpty() && cFormula.contains(text[0]))
        text.prepend(u'\'');
    if (text.contains(u'"') || text.contains(u',') || text.contains(u'\n'))
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

QString passReport(const PassRecord& pass) {
    const QString nextStep = nextStepFor(pass.cause);
    QString report = beganText(pass) + u" – " + withVisibleControls(sentenceFor(pass)) + u'\n';
    if (!nextStep.isEmpty())
        report += Words::tr("Next step: %1").arg(nextStep) + u'\n';
    report += Words::listed({pass.kind == PassKind::Remote ? Words::tr("Remote pass")
                                                           : Words::tr("Plain pass"),
                             withSize(filesText(pass), pass.transfer), secondsText(pass.seconds)}) +
              u'\n';
    report += arrivalsReport(pass.arrivals);
    for (const CommandRecord& command : pass.commands)
        report += u'\n' + commandReport(command, pass.cause);
    return report;
}

QString passesAsCsv(std::span<const PassRecord> records) {
    QStringList lines{QStringLiteral("began,kind,cause,outcome,files,bytes,seconds,last line")};
    for (const PassRecord& pass : records) {
        const CauseWords words = wordsFor(pass.cause);
        lines.append(QStringList{pass.began.toString(Qt::ISODate),
                                 pass.kind == PassKind::Remote ? QStringLiteral("remote")
                                                               : QStringLiteral("plain"),
                                 words.name.toString(), cell(words.sentence.toString()),
                                 numberCell(pass.transfer.files), numberCell(pass.transfer.bytes),
                                 QString::number(pass.seconds, 'f', 3), cell(pass.lastLine)}
                         .join(u','));
    }
    return lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}

QString timeText(const QDateTime& moment) {
    const QLocale locale;
    const QString format = locale.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    return locale.toString(moment.toLocalTime().time(), format);
}

QString momentText(const QDateTime& moment, const QDateTime& now) {
    const QDateTime local = moment.toLocalTime();
    return local.date() == now.toLocalTime().date()
               ? timeText(moment)
               : QLocale().toString(local, QLocale::ShortFormat);
}

QString foldedText(qint64 passes, const QDateTime& first, const QDateTime& last) {
    constexpr const char* cText = QT_TRANSLATE_N_NOOP("Words", "%Ln passes, nothing new, %1 to %2");
    return Words::counted(cText, cText, passes).arg(timeText(first), timeText(last));
}

bool isRunning(const WorkState& work) {
    return work.phase == WorkPhase::Running || work.phase == WorkPhase::Finishing ||
           work.phase == WorkPhase::Cancelling;
}

QString runningText(const WorkState& work) {
    QStringList parts{work.step.isEmpty() ? Words::tr("Running") : work.step};
    if (!work.count.isEmpty())
        parts.append(work.count);
    if (work.share)
        parts.append(Words::percent(*work.share));
    if (work.phase == WorkPhase::Cancelling)
        parts.append(Words::tr("being cancelled"));
    return Words::listed(parts);
}

QString runningReport(const WorkState& work) {
    QStringList lines{runningText(work)};
    for (const QString& line : {work.file, work.amount, work.speed, work.timeLeft}) {
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines.join(u'\n') + u'\n';
}

QString bytesText(qint64 bytes) {
    const QLocale locale;
    const QString text = locale.formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
    return text.indexOf(locale.decimalPoint()) < 3
               ? text
               : locale.formattedDataSize(bytes, 0, QLocale::DataSizeSIFormat);
}

QString arrivedName(const QByteArray& path, const QString& folder) {
    QByteArray before = folder.toUtf8();
    if (!before.isEmpty() && !before.endsWith('/'))
        before += '/';
    return oneLine(decoded(path.startsWith(before) ? path.sliced(before.size()) : path));
}

QString dayText(QDate day, QDate today) {
    if (day == today)
        return Words::tr("Today");
    return day.addDays(1) == today ? Words::tr("Yesterday")
                                   : QLocale().toString(day, QLocale::LongFormat);
}

QString dayReport(const DayOfPasses& day) {
    const QString came = day.files == 0
                             ? Words::tr("nothing new")
                             : Words::listed({bytesText(day.bytes), moviesText(day.files)});
    return day.trouble ? Words::tr("%1; a pass was in trouble").arg(came) : came;
}

QString totalText(std::span<const DayOfPasses> all, int days) {
    DayOfPasses sum;
    for (const DayOfPasses& day : all) {
        sum.files += day.files;
        sum.bytes += day.bytes;
    }
    constexpr const char* cText = QT_TRANSLATE_N_NOOP("Words", "%1 in %Ln days");
    return Words::counted(cText, cText, days).arg(dayReport(sum));
}

} // namespace kelvo
