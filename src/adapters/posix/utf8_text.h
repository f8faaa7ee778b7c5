// Utf8Text: a text that grows out of UTF-8 bytes as they come.
#pragma once

#include <QString>
#include <QStringDecoder>

namespace kelvo {

/// Broken sequences become U+FFFD; a character may be cut by the end of a chunk. The memory in use
/// stays close to the size of the text: large blocks grow by a quarter.
class Utf8Text {
public:
    void append(const char* bytes, qsizetype count);

    /// The whole text; a sequence that never ended is shown as broken. Called once, last.
    QString take();

private:
    QStringDecoder fDecoder{QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom};
    QString fText;
    qsizetype fLength = 0;
};

} // namespace kelvo
