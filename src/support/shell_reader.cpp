#include "support/shell_reader.h"

namespace kelvo {
namespace {

bool partsWords(QChar sign) {
    return QStringView(u" \t\n;|&()<>").contains(sign);
}

bool isOfName(QChar sign) {
    return sign == u'_' || (sign.unicode() < 0x80 && sign.isLetterOrNumber());
}

bool isPlain(QChar sign) {
    return isOfName(sign) || sign == u'-' || sign == u'.' || sign == u'=';
}

} // namespace

ShellPlace ShellReader::placeAt(qsizetype position) {
    while (fNext < position)
        step();
    const Frame& frame = fFrames.back();
    if (fLost || fAfterDollar || fNext > position)
        return {Quoting::Unclear, {}};
    if (frame.quoting == Quoting::Bare)
        return {};
    return {frame.quoting, fText.sliced(frame.begin, position - frame.begin)};
}

void ShellReader::step() {
    const QChar sign = fText[fNext];
    const QStringView rest = fText.sliced(fNext);
    const Quoting quoting = fFrames.back().quoting;
    fAfterDollar = false;
    if (isOfName(sign)) {
        // Its patterns have brackets without a partner.
        fLost = fLost || (fWordBegins && rest.startsWith(u"case "));
        fWordBegins = false;
        ++fNext;
    } else if (quoting == Quoting::Single) {
        if (sign == u'\'')
            fFrames.pop_back();
        ++fNext;
    } else if (sign == u'\\') {
        fWordBegins = false;
        fNext += 2;
    } else if (sign == u'"') {
        fWordBegins = false;
        ++fNext;
        if (quoting == Quoting::Double)
            fFrames.pop_back();
        else
            fFrames.push_back({Quoting::Double, fNext});
    } else if (rest.startsWith(u"${")) {
        fWordBegins = false;
        skipVariable();
    } else if (rest.startsWith(u"$(")) {
        fLost = fLost || rest.startsWith(u"$((");
        fWordBegins = true;
        fNext += 2;
        fFrames.push_back({Quoting::Bare, {}});
    } else {
        fLost = fLost || sign == u'`';
        if (quoting == Quoting::Bare)
            stepOutsideQuotes(sign, rest);
        fAfterDollar = sign == u'$';
        ++fNext;
    }
}

void ShellReader::stepOutsideQuotes(QChar sign, QStringView rest) {
    if (rest.startsWith(u"<<") || rest.startsWith(u"((") || rest.startsWith(u"$'"))
        fLost = true;
    if (sign == u'\'')
        fFrames.push_back({Quoting::Single, fNext + 1});
    else if (sign == u'(')
        fFrames.push_back({Quoting::Bare, {}});
    else if (sign == u')' && fFrames.size() > 1)
        fFrames.pop_back();
    else if (sign == u'#' && fWordBegins)
        fLost = true; // a remark, in which quotes are nothing
    fWordBegins = partsWords(sign);
}

/// "${name}", or "${name-text}" with a text that any shell takes as it is; anything more in the
/// braces has rules of its own.
void ShellReader::skipVariable() {
    const auto skipWhile = [this](bool (*fits)(QChar)) {
        while (fNext < fText.size() && fits(fText[fNext]))
            ++fNext;
    };
    fNext += 2;
    skipWhile(isOfName);
    if (fNext < fText.size() && fText[fNext] == u'-')
        skipWhile(isPlain);
    if (fNext < fText.size() && fText[fNext] == u'}')
        ++fNext;
    else
        fLost = true;
}

} // namespace kelvo
