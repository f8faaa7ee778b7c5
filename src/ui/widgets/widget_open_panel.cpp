#include "ui/widgets/widget_open_panel.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QWindow>

namespace kelvo {
namespace {

/// The toolkit's dialog chooses either files or folders; this one, made for folders, takes a file
/// as well.
class FilesAndFoldersDialog final : public QFileDialog {
public:
    explicit FilesAndFoldersDialog(QWidget* parent) : QFileDialog(parent) {
        connect(this, &QFileDialog::currentChanged, this, [this](const QString& path) {
            if (QFileInfo(path).isFile())
                openButton()->setEnabled(true);
        });
    }

    void accept() override {
        const QStringList chosen = selectedFiles();
        if (!chosen.isEmpty() && QFileInfo(chosen.first()).isFile())
            done(Accepted);
        else
            QFileDialog::accept();
    }

private:
    QPushButton* openButton() {
        return findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    }
};

} // namespace

OpenPanelAnswer WidgetOpenPanel::runModal(const OpenPanelOptions& options) {
    const QPointer<FilesAndFoldersDialog> dialog = new FilesAndFoldersDialog(fParent);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowTitle(options.title);
    dialog->setOption(QFileDialog::ReadOnly, !options.canCreateDirectories);
    if (options.canChooseDirectories) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly, !options.canChooseFiles);
    } else {
        dialog->setFileMode(options.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                            : QFileDialog::ExistingFile);
    }
    dialog->setLabelText(QFileDialog::Accept, QObject::tr("&Open"));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog) // The main window went while the panel was open.
        return {};
    OpenPanelAnswer answer{accepted, accepted ? dialog->selectedFiles() : QStringList()};
    delete dialog;
    // The list of names below the field, open to the last, hides from the toolkit that the window
    // has the keyboard again.
    if (fParent && !fParent->isActiveWindow() &&
        QGuiApplication::focusWindow() == fParent->windowHandle())
        QApplication::setActiveWindow(fParent);
    return answer;
}

} // namespace kelvo
