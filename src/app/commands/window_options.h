// WindowOptions: what a command line holds for the toolkit, which reads these options itself.
#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

struct WindowOptions {
    QStringList given; ///< as the toolkit takes them: a value is a word of its own
    QStringList rest;  ///< all other arguments
    QString problem;   ///< an option without its value, in words; empty when there is none

    /// The value that was given last for `option`, named without its dash; empty when there is
    /// none.
    QString valueOf(QStringView option) const;
};

/// Takes the toolkit's options out of `arguments`, the program's name first. They have one dash or
/// two, and their value behind a blank or "="; behind "--" there are none.
WindowOptions windowOptions(const QStringList& arguments);

} // namespace kelvo
