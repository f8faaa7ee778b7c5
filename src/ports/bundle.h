// Bundle: the files that come with the program.
#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace kelvo {

class Console;

class Bundle {
public:
    virtual ~Bundle() = default;

    /// The path of the resource `name` with the ending `type` (none when empty); nothing when there
    /// is no such file. A name with a "/" in it is never found.
    virtual std::optional<QString> pathForResource(const QString& name,
                                                   const QString& type) const = 0;

    /// The property list `name`.plist as a dictionary; nothing when it is missing, cannot be read
    /// or has another root.
    virtual std::optional<QVariantMap> propertyList(const QString& name) const = 0;

    /// The program's version for people, from Info.plist: CFBundleShortVersionString, with
    /// CFBundleVersion in brackets where that says something else; the latter alone when it stands
    /// alone. Nothing, with a line in the system log of `console`, when there is none to be had.
    std::optional<QString> getFullVersionString(Console& console) const;
};

} // namespace kelvo
