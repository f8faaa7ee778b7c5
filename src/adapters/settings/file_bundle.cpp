#include "adapters/settings/file_bundle.h"

#include "adapters/settings/plist_codec.h"
#include "adapters/settings/plist_file.h"

#include <QFileInfo>

namespace kelvo {

FileBundle::FileBundle(const QString& folder) : fFolder(folder) {}

std::optional<QString> FileBundle::pathForResource(const QString& name, const QString& type) const {
    const QString file = type.isEmpty() ? name : name + QLatin1Char('.') + type;
    if (name.isEmpty() || file.contains(QLatin1Char('/')))
        return std::nullopt;
    const QString path = fFolder + QLatin1Char('/') + file;
    return QFileInfo(path).isFile() ? std::optional(path) : std::nullopt;
}

std::optional<QVariantMap> FileBundle::propertyList(const QString& name) const {
    const auto path = pathForResource(name, QStringLiteral("plist"));
    if (!path)
        return std::nullopt;
    const PlistFile::Contents file = PlistFile(*path).read();
    if (file.state != PlistFile::Contents::State::Read)
        return std::nullopt;
    return decodePlist(file.bytes).root;
}

} // namespace kelvo
