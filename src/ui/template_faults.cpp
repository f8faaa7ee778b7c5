#include "ui/template_faults.h"

#include "sync/rsync_command.h"

namespace kelvo {
namespace {

/// Can be put into a command only where a shell's quotes are certain.
constexpr QStringView cOddFolder = u"/a b'\"$c";
constexpr QStringView cPlainKey = u"/key";

bool keepsOddFoldersWhole(const QString& command, bool overSsh) {
    RsyncParams params{cOddFolder.toString(), cOddFolder.toString(), std::nullopt};
    if (overSsh)
        params.sshfilepath = cPlainKey.toString();
    return commandFault(command, params).isEmpty();
}

} // namespace

std::vector<TemplateFault> templateFaults(const QString& command, bool overSsh, qint64 optionTag) {
    const auto lacks = [&command](QStringView placeholder) {
        return !command.contains(placeholder);
    };
    std::vector<TemplateFault> faults;
    if (lacks(u"%@1"))
        faults.push_back(TemplateFault::NoSource);
    if (lacks(u"%@2"))
        faults.push_back(TemplateFault::NoDestination);
    if (overSsh && lacks(u"%@98") && lacks(u"%@3"))
        faults.push_back(TemplateFault::NoSsh);
    if (lacks(u"%@99") && !optionStringForTag(optionTag).value_or(QStringView()).isEmpty())
        faults.push_back(TemplateFault::NoOption);
    if (!keepsOddFoldersWhole(command, overSsh))
        faults.push_back(TemplateFault::PartsWords);
    return faults;
}

} // namespace kelvo
