// LocalChecklistProbe: asks this machine's file system.
#pragma once

#include "ports/checklist_probe.h"

namespace kelvo {

class LocalChecklistProbe final : public ChecklistProbe {
public:
    bool isProgram(const QString& path) const override;
    bool isWritableFolder(const QString& path) const override;
};

} // namespace kelvo
