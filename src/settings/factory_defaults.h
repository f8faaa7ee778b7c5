// Registers the values that settings have before a person changes them.
#pragma once

namespace kelvo {

class Bundle;
class Console;
class UserDefaults;

/// Lays the bundle's property list "FactoryDefaults" under the settings and flushes the store. One
/// that is missing or broken costs a printed line; the program runs on with what is stored. Notices
/// are on even where the list does not say so.
void registerFactoryDefaults(const Bundle& bundle, UserDefaults& defaults, Console& console);

} // namespace kelvo
