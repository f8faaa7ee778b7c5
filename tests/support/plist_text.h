// plistText: a property list in its XML form, for the settings a lab test starts the program with.
#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace kelvo {

/// Booleans, integers, reals and strings keep their type; any other type of value is left out.
QByteArray plistText(const QVariantMap& values);

} // namespace kelvo
