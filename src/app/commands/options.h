// The one table of the command line's options, from which it is read, explained and completed.
#pragma once

#include <QString>

#include <span>

namespace kelvo {

enum class OptionGroup {
    Start,    ///< ways to run passes
    Copy,     ///< asks and tells the copy that runs
    Record,   ///< asks the record
    Settings, ///< reads and changes settings
    Setup,    ///< sets a Mac up and answers its questions
    Macs,     ///< keeps several Macs apart
    Form,     ///< goes with others
    Program,  ///< about the program itself
    Hidden,   ///< nobody types it
};

struct Option {
    QStringView name;   ///< without its two dashes
    QStringView values; ///< one word each; empty for none
    OptionGroup group;
    QStringView help;         ///< one sentence
    QStringView letter = u""; ///< of the short form; empty when there is none
};

/// Every option but those of the toolkit, in the order of the help.
std::span<const Option> optionTable();

/// What --help prints, in lines of at most 80 columns.
QString optionHelp();

} // namespace kelvo
