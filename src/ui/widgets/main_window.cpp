#include "ui/widgets/main_window.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "support/preference_keys.h"
#include "ui_main_window.h"

namespace kelvo {

MainWindow::MainWindow(UserDefaults& defaults, DispatchQueue& mainQueue)
    : fDefaults(defaults), fUi(std::make_unique<Ui::MainWindow>()) {
    fUi->setupUi(this);
    for (const QStringView key : {prefRsyncWithSSH, prefSampleRemoteFullPath, prefPath1, prefPath2})
        fObservations.push_back(defaults.observe(key, [this, &mainQueue](const DefaultsChange&) {
            mainQueue.async([this] { showPlaces(); });
        }));
    showPlaces();
}

MainWindow::~MainWindow() = default;

QPushButton& MainWindow::ibStartButton() {
    return *fUi->ibStartButton;
}

StatusFieldView& MainWindow::ibStatusTextField() {
    return *fUi->ibStatusTextField;
}

void MainWindow::showPlaces() {
    const auto shown = [this](QStringView key, const QString& whenMissing) {
        const QString text = fDefaults.stringForKey(key).value_or(QString());
        return text.isEmpty() ? whenMissing : text;
    };
    const bool withSSH = fDefaults.boolForKey(prefRsyncWithSSH);
    fUi->sourceText->setText(withSSH
                                 ? shown(prefSampleRemoteFullPath, tr("No remote Mac chosen yet"))
                                 : shown(prefPath1, tr("No source folder chosen yet")));
    fUi->destinationText->setText(shown(prefPath2, tr("No destination folder chosen yet")));
}

} // namespace kelvo
