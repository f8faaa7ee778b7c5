// Looking for files beneath a folder, without following links.
#pragma once

#include "ports/file_manager.h"

namespace kelvo {

/// As the operations of FileManager of the same names.
std::vector<FoundFile> filesBeneath(const QByteArray& folder, const NameList& names);
std::vector<FoundFile>
filesChangedSince(const QByteArray& folder, const QDateTime& moment,
                  const std::function<bool(QByteArrayView name)>& passedOver);

} // namespace kelvo
