// Words: what people read, in their language where a catalogue of it is loaded, else in English.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace kelvo {

/// Words::tr("…") is how the sources of this folder say anything. A program without a window loads
/// no catalogue: what it prints is English byte for byte. Numbers are written as the default locale
/// has them, so a program that loads none leaves that at "C". Any thread.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)

public:
    /// "3 files", in the plural form that the language has for `number`. `many` holds "%Ln" and is
    /// marked with QT_TRANSLATE_N_NOOP("Words", …); `one` is what English says of 1 and is not
    /// translated itself. Numbers beyond an int are taken for the largest one.
    static QString counted(const char* one, const char* many, qint64 number);

    /// "3 files, 1.2 GB": facts of their own, one behind the other.
    static QString listed(const QStringList& facts);

    /// "48 %"; `share` is 0 to 1, and 100 % only once it is all.
    static QString percent(double share);

    /// What a person reads for `english`, a text that the lower parts of the program say in English
    /// because it is also printed, logged or stored. Found as it stands or by a pattern with the
    /// values in it; any other text comes back as it is, and so does each one without a catalogue.
    static QString shown(const QString& english);
};

} // namespace kelvo
