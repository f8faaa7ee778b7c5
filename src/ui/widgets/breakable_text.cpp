#include "ui/widgets/breakable_text.h"

#include <QTextBoundaryFinder>

namespace kelvo {
namespace {

constexpr qsizetype cLongWord = 32;
constexpr char16_t cBreakHere = 0x200b;
/// From here on stand the scripts of East Asia, which break by themselves.
constexpr char16_t cFirstEastern = 0x2e80;

bool endsWord(QChar letter) {
    return letter.isSpace() || (letter.unicode() >= cFirstEastern && !letter.isSurrogate());
}

void appendBroken(QString& text, const QString& word) {
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, word);
    qsizetype from = 0;
    for (qsizetype to = letters.toNextBoundary(); to > 0; to = letters.toNextBoundary()) {
        text += QStringView(word).sliced(from, to - from);
        if (to < word.size())
            text += QChar(cBreakHere);
        from = to;
    }
}

} // namespace

QString breakable(const QString& text) {
    QString broken;
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at;
        while (end < text.size() && !endsWord(text[end]))
            ++end;
        const QString word = text.sliced(at, end - at);
        if (word.size() > cLongWord)
            appendBroken(broken, word);
        else
            broken += word;
        if (end < text.size())
            broken += text[end++];
        at = end;
    }
    return broken;
}

} // namespace kelvo
