// Texts put into commands, read back by real shells.
#include "support/shell_words.h"

#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace kelvo {
namespace {

/// The words a command of one text has, each in pointed brackets on a line.
const QString cTemplate =
    QStringLiteral("printf '<%s>\\n' %@1 \"%@1\" '%@1' -a%@1b x\"%@1\" \"$(printf %s \"%@1\")x\"");

QByteArray wordsOf(const QByteArray& value) {
    QByteArray lines;
    for (const QByteArray& word :
         QByteArrayList{value, value, value, "-a" + value + 'b', 'x' + value, value + 'x'})
        lines += '<' + word + ">\n";
    return lines;
}

class ShellWordsContract : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!QFileInfo(QString::fromLatin1(GetParam())).isExecutable())
            GTEST_SKIP() << "there is no " << GetParam();
    }

    QByteArray printedBy(const QString& script) {
        QProcess shell;
        shell.setWorkingDirectory(fFolder.path());
        shell.start(QString::fromLatin1(GetParam()), {"-c", script});
        EXPECT_TRUE(shell.waitForFinished(60'000));
        EXPECT_EQ(shell.readAllStandardError(), QByteArray()) << script.toStdString();
        return shell.readAllStandardOutput();
    }

    /// Many texts in one shell, and one by one when that fails.
    void expectWhole(const QStringList& texts) {
        QStringList scripts;
        QByteArray expected;
        for (const QString& text : texts) {
            const auto command = withWord(cTemplate, u"%@1", text);
            ASSERT_TRUE(command) << text.toStdString();
            scripts.append(*command);
            expected += wordsOf(text.toUtf8());
        }
        if (printedBy(scripts.join(u'\n')) == expected)
            return;
        for (qsizetype i = 0; i < texts.size(); ++i)
            EXPECT_EQ(printedBy(scripts[i]), wordsOf(texts[i].toUtf8()))
                << scripts[i].toStdString();
    }

    /// Those that are refused are counted.
    int expectWholeOrRefused(const QList<QByteArray>& values) {
        int refused = 0;
        QStringList texts;
        for (const QByteArray& value : values) {
            const QString text = QString::fromUtf8(value);
            if (!wordFault(text).isEmpty()) {
                ++refused;
                continue;
            }
            EXPECT_EQ(text.toUtf8(), value);
            texts.append(text);
            if (texts.size() == 100) {
                expectWhole(texts);
                texts.clear();
            }
        }
        expectWhole(texts);
        return refused;
    }

    QTemporaryDir fFolder; ///< where a text that was run would leave its traces
};

TEST_P(ShellWordsContract, EveryByte_IsOneWordOrRefused) {
    QList<QByteArray> values;
    for (int byte = 1; byte < 256; ++byte)
        values.append(QByteArray(1, static_cast<char>(byte)));
    EXPECT_EQ(expectWholeOrRefused(values), 128 + 3) << "no text, the dash, two line breaks";
}

TEST_P(ShellWordsContract, EverySignOfLatin1_IsOneWord) {
    QList<QByteArray> values;
    for (char16_t sign = 1; sign < 0x100; ++sign)
        values.append((QString(u'a') + QChar(sign) + u'b').toUtf8());
    EXPECT_EQ(expectWholeOrRefused(values), 2);
}

TEST_P(ShellWordsContract, ByteStrings_AreOneWordOrRefused) {
    std::mt19937 random(20261122);
    const QByteArray nasty = " \t\\\\''\"\"``$$(){}[]<>|&;#*?!~^=-%@12398:+.ab";
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<unsigned long>(end));
    };
    QList<QByteArray> values;
    for (int i = 0; i < 4000; ++i) {
        QByteArray value;
        for (qsizetype length = 1 + below(12); length > 0; --length)
            value +=
                below(40) == 0 ? static_cast<char>(1 + below(255)) : nasty[below(nasty.size())];
        values.append(value);
    }
    const int refused = expectWholeOrRefused(values);
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 1000);
}

INSTANTIATE_TEST_SUITE_P(Shells, ShellWordsContract, ::testing::Values("/bin/sh", "/bin/bash"));

} // namespace
} // namespace kelvo
