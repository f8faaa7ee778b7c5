// FileBundle: the program's resources as real files in one folder.
#pragma once

#include "ports/bundle.h"

namespace kelvo {

/// The files are looked up anew at every call. Any thread.
class FileBundle final : public Bundle {
public:
    explicit FileBundle(const QString& folder);

    std::optional<QString> pathForResource(const QString& name, const QString& type) const override;
    std::optional<QVariantMap> propertyList(const QString& name) const override;

private:
    QString fFolder;
};

} // namespace kelvo
