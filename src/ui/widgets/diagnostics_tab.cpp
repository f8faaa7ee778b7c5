#include "ui/widgets/diagnostics_tab.h"

#include "ui_diagnostics_tab.h"

namespace kelvo {

DiagnosticsTab::DiagnosticsTab(QWidget* parent)
    : QWidget(parent), fUi(std::make_unique<Ui::DiagnosticsTab>()) {
    fUi->setupUi(this);
}

DiagnosticsTab::~DiagnosticsTab() = default;

QTableView& DiagnosticsTab::foundServices() {
    return *fUi->foundServices;
}

} // namespace kelvo
