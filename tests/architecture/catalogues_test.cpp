// The window's languages: every source of a catalogue is up to date with the texts in src/, and
// each language that is said to be finished is whole.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace kelvo {
namespace {

const QString cFolder = QStringLiteral(KELVO_TRANSLATIONS);

struct Message {
    QString context;
    QString source;
    QStringList forms; ///< of a plural as many as the language has, else one
    bool isPlural = false;
    bool isUnfinished = false;
};

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<Message> messagesIn(const QByteArray& ts) {
    std::vector<Message> messages;
    QXmlStreamReader xml(ts);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            messages.push_back({.context = context,
                                .source = {},
                                .forms = {},
                                .isPlural = xml.attributes().value("numerus") == u"yes"});
        } else if (xml.name() == u"source") {
            messages.back().source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            messages.back().isUnfinished = xml.attributes().hasAttribute("type");
            if (!messages.back().isPlural)
                messages.back().forms.append(xml.readElementText());
        } else if (xml.name() == u"numerusform") {
            messages.back().forms.append(xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return messages;
}

QStringList placesIn(const QString& text) {
    static const QRegularExpression cPlace(QStringLiteral("%(@[0-9]+|L?[0-9]|L?n)"));
    QStringList places;
    for (auto all = cPlace.globalMatch(text); all.hasNext();)
        places.append(all.next().captured());
    places.sort();
    return places;
}

qsizetype acceleratorsIn(QString text) {
    return text.remove(QStringLiteral("&&")).count(u'&');
}

QString blanksAround(const QString& text) {
    static const QRegularExpression cAround(QStringLiteral("\\A(\\s*).*?(\\s*)\\z"),
                                            QRegularExpression::DotMatchesEverythingOption);
    const auto match = cAround.match(text);
    return match.captured(1) + u'|' + match.captured(2);
}

/// What is wrong with `form`, a translation of `source`; empty when nothing is.
QString faultOf(const QString& source, const QString& form, bool mayLeaveNumberOut) {
    if (form.trimmed().isEmpty())
        return QStringLiteral("is missing");
    QStringList wanted = placesIn(source);
    if (mayLeaveNumberOut && !form.contains(u"%Ln"))
        wanted.removeAll(QStringLiteral("%Ln"));
    if (placesIn(form) != wanted)
        return QStringLiteral("holds other places");
    if (acceleratorsIn(source) != acceleratorsIn(form))
        return QStringLiteral("has lost or won an accelerator");
    if (blanksAround(source) != blanksAround(form))
        return QStringLiteral("begins or ends with other blanks");
    if (form.contains(u"  ") && !source.contains(u"  "))
        return QStringLiteral("holds two blanks in a row");
    if (source.count(u'\n') != form.count(u'\n'))
        return QStringLiteral("has another number of lines");
    for (const QStringView end : {u"…", u"..."}) {
        if (source.trimmed().endsWith(end) != form.trimmed().endsWith(end))
            return QStringLiteral("ends with another sign");
    }
    return {};
}

QString faultOf(const Message& message) {
    if (message.isUnfinished)
        return QStringLiteral("is unfinished");
    for (qsizetype i = 0; i < message.forms.size(); ++i) {
        const bool isLast = i + 1 == message.forms.size();
        if (const QString fault =
                faultOf(message.source, message.forms[i], message.isPlural && !isLast);
            !fault.isEmpty())
            return fault;
    }
    return message.forms.isEmpty() ? QStringLiteral("is missing") : QString();
}

QStringList finishedLanguages() {
    return QString::fromUtf8(contents(cFolder + u"/finished.txt")).split(u'\n', Qt::SkipEmptyParts);
}

TEST(CataloguesTest, Sources_AreUpToDateWithTheTexts) {
    const QTemporaryDir copies;
    ASSERT_TRUE(copies.isValid());
    const QStringList names = QDir(cFolder).entryList({QStringLiteral("*.ts")});
    ASSERT_EQ(names.size(), 6);
    for (const QString& name : names)
        ASSERT_TRUE(QFile::copy(cFolder + u'/' + name, copies.filePath(name)));
    QProcess refresh;
    refresh.setProcessChannelMode(QProcess::ForwardedChannels);
    refresh.start(QStringLiteral(KELVO_REFRESH), {copies.path()});
    ASSERT_TRUE(refresh.waitForFinished());
    ASSERT_EQ(refresh.exitCode(), 0);
    for (const QString& name : names)
        EXPECT_EQ(contents(copies.filePath(name)), contents(cFolder + u'/' + name))
            << qPrintable(name) << ": run ./dev translations, then translate what is new";
}

TEST(CataloguesTest, FinishedLanguages_AreWhole) {
    const QStringList languages = finishedLanguages();
    ASSERT_FALSE(languages.isEmpty());
    for (const QString& language : languages) {
        const auto messages = messagesIn(contents(cFolder + u"/kelvo-mirror_" + language + u".ts"));
        EXPECT_GT(messages.size(), 300U) << qPrintable(language);
        for (const Message& message : messages) {
            const QString fault = faultOf(message);
            EXPECT_TRUE(fault.isEmpty()) << qPrintable(language + u", " + message.context +
                                                       u": \"" + message.source + u"\" " + fault);
        }
    }
}

TEST(CataloguesTest, Faults_AreSeen) {
    const auto fault = [](const char* source, const char* form, bool mayLeaveNumberOut = false) {
        return faultOf(QString::fromUtf8(source), QString::fromUtf8(form), mayLeaveNumberOut);
    };
    EXPECT_TRUE(fault("%1 of %2", "%2: %1").isEmpty());
    EXPECT_FALSE(fault("%1 of %2", "%1 von %1").isEmpty());
    EXPECT_FALSE(fault("%L1 s", "%1 s").isEmpty());
    EXPECT_FALSE(fault("places %@1", "Stellen %@2").isEmpty());
    EXPECT_FALSE(fault("%Ln files", "eine Datei").isEmpty());
    EXPECT_TRUE(fault("%Ln files", "eine Datei", true).isEmpty());
    EXPECT_FALSE(fault("&Quit", "Beenden").isEmpty());
    EXPECT_FALSE(fault("Quit", "&Beenden").isEmpty());
    EXPECT_TRUE(fault("&Quit", "Beenden && &gehen").isEmpty());
    EXPECT_FALSE(fault(" s", "s").isEmpty());
    EXPECT_FALSE(fault("a b", "a  b").isEmpty());
    EXPECT_FALSE(fault("a\nb", "a b").isEmpty());
    EXPECT_FALSE(fault("Choose…", "Wählen").isEmpty());
    EXPECT_FALSE(fault("Resting ...", "Pause").isEmpty());
    EXPECT_FALSE(fault("a", "").isEmpty());

    const auto messages = messagesIn(
        "<TS><context><name>A</name><message><source>b</source><translation type=\"unfinished\">"
        "c</translation></message><message numerus=\"yes\"><source>%Ln d</source><translation>"
        "<numerusform>e</numerusform><numerusform>f</numerusform></translation></message>"
        "</context></TS>");
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(faultOf(messages[0]), u"is unfinished");
    EXPECT_EQ(messages[1].forms.size(), 2);
    EXPECT_FALSE(faultOf(messages[1]).isEmpty()) << "the last form names the number";
}

} // namespace
} // namespace kelvo
