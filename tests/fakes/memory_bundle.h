// MemoryBundle: resources without files.
#pragma once

#include "ports/bundle.h"

#include <QMap>

namespace kelvo {

/// Fill it before use; after that any thread may read.
class MemoryBundle final : public Bundle {
public:
    /// A resource file by its full name, "watchdog" or "Main.ui".
    void addFile(const QString& name) { fFiles.insert(name, std::nullopt); }

    /// A property list `name`.plist; without `content` one that cannot be read.
    void addPropertyList(const QString& name, const std::optional<QVariantMap>& content) {
        fFiles.insert(name + QStringLiteral(".plist"), content);
    }

    std::optional<QString> pathForResource(const QString& name,
                                           const QString& type) const override {
        const QString file = type.isEmpty() ? name : name + QLatin1Char('.') + type;
        const bool found =
            !name.isEmpty() && !file.contains(QLatin1Char('/')) && fFiles.contains(file);
        return found ? std::optional(QStringLiteral("/bundle/") + file) : std::nullopt;
    }

    std::optional<QVariantMap> propertyList(const QString& name) const override {
        return pathForResource(name, QStringLiteral("plist"))
                   ? fFiles.value(name + QStringLiteral(".plist"))
                   : std::nullopt;
    }

private:
    QMap<QString, std::optional<QVariantMap>> fFiles;
};

} // namespace kelvo
