#include "ui/widgets/widget_open_panel.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>

namespace kelvo {
namespace {

/// The toolkit's dialog chooses either files or folders; this one, made for folders, takes a file
/// as well.
class FilesAndFoldersDialog final : public QFileDialog {
public:
    explicit FilesAndFoldersDialog(QWidget* parent) : QFileDialog(parent) {
        setOption(QFileDialog::DontUseNativeDialog);
        setFileMode(QFileDialog::Directory);
        setLabelText(QFileDialog::FileName, QObject::tr("&Folder or file:"));
        // It would say that only folders can be chosen.
        for (const char* name : {"fileTypeLabel", "fileTypeCombo"}) {
            if (auto* kinds = findChild<QWidget*>(QString::fromLatin1(name)))
                kinds->hide();
        }
        // The dialog shuts its button for a file, at moments of its own: a look afterwards.
        connect(this, &QFileDialog::currentChanged, this, &FilesAndFoldersDialog::openForFile,
                Qt::QueuedConnection);
        if (auto* field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
            connect(field, &QLineEdit::textChanged, this, &FilesAndFoldersDialog::openForFile,
                    Qt::QueuedConnection);
    }

    void accept() override {
        if (isFileChosen())
            done(Accepted);
        else
            QFileDialog::accept();
    }

private:
    void openForFile() {
        if (isFileChosen())
            findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->setEnabled(true);
    }
    bool isFileChosen() const {
        const QStringList chosen = selectedFiles();
        return !chosen.isEmpty() && QFileInfo(chosen.first()).isFile();
    }
};

/// The dialog for what `options` allow.
QPointer<QFileDialog> newDialog(const OpenPanelOptions& options, QWidget* parent) {
    if (options.canChooseDirectories && options.canChooseFiles)
        return new FilesAndFoldersDialog(parent);
    auto* dialog = new QFileDialog(parent);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QFileDialog::ShowDirsOnly, options.canChooseDirectories);
    dialog->setFileMode(options.canChooseDirectories      ? QFileDialog::Directory
                        : options.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                          : QFileDialog::ExistingFile);
    return dialog;
}

} // namespace

OpenPanelAnswer WidgetOpenPanel::runModal(const OpenPanelOptions& options) {
    const QPointer<QFileDialog> dialog = newDialog(options, fParent);
    dialog->setWindowTitle(options.title);
    dialog->setOption(QFileDialog::ReadOnly, !options.canCreateDirectories);
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
