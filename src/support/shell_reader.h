// ShellReader: follows a shell command's quotes.
#pragma once

#include <QStringView>

#include <vector>

namespace kelvo {

enum class Quoting {
    Bare,
    Single,
    Double,
    Unclear, ///< what a shell makes of a text there is not known
};

struct ShellPlace {
    Quoting quoting = Quoting::Bare;
    QStringView before; ///< what stands between the opening quote and the place; bare: nothing
};

/// Reads a command once from its begin on; the text outlives it.
class ShellReader {
public:
    explicit ShellReader(QStringView text) : fText(text) {}

    /// Of the sign at `position`, which is not before that of an earlier call.
    ShellPlace placeAt(qsizetype position);

private:
    struct Frame {
        Quoting quoting;
        qsizetype begin; ///< of what is quoted
    };

    void step();
    void stepOutsideQuotes(QChar sign, QStringView rest);
    void skipVariable();

    const QStringView fText;
    std::vector<Frame> fFrames{{Quoting::Bare, 0}};
    qsizetype fNext = 0;
    bool fLost = false; ///< from here on nothing is sure
    bool fAfterDollar = false;
    bool fWordBegins = true;
};

} // namespace kelvo
