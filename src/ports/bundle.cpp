#include "ports/bundle.h"

#include "ports/console.h"

namespace kelvo {
namespace {

QString textEntry(const QVariantMap& information, const QString& key) {
    const QVariant value = information.value(key);
    return value.typeId() == QMetaType::QString ? value.toString().trimmed() : QString();
}

} // namespace

std::optional<QString> Bundle::getFullVersionString(Console& console) const {
    const auto information = propertyList(QStringLiteral("Info"));
    if (!information) {
        console.log(QStringLiteral(
            "Info.plist is missing or cannot be read: the program's version is not known."));
        return std::nullopt;
    }
    const QString version = textEntry(*information, QStringLiteral("CFBundleShortVersionString"));
    const QString build = textEntry(*information, QStringLiteral("CFBundleVersion"));
    if (version.isEmpty() && build.isEmpty()) {
        console.log(
            QStringLiteral("Info.plist has no version in it: the program's version is not known."));
        return std::nullopt;
    }
    if (version.isEmpty() || build.isEmpty() || version == build)
        return version.isEmpty() ? build : version;
    return version + u" (" + build + u')';
}

} // namespace kelvo
