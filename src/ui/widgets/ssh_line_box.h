// SshLineBox: says that ssh does not know of the shared connection yet, and offers to tell it.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace kelvo {

class AlertPresenter;
class SshConfiguration;

/// Hidden where there is nothing to offer: the machine's own configuration tells ssh.
class SshLineBox final : public QWidget {
    Q_OBJECT
public:
    explicit SshLineBox(QWidget* parent = nullptr);

    /// Both outlive the box, `alerts` calls nothing back once it is gone. Without the one the box
    /// stays hidden, without the other it asks nobody.
    void setConfiguration(SshConfiguration* configuration, AlertPresenter* alerts);

    /// Shows how it stands now.
    void look();

private:
    void askAndChange();
    void change(bool there);
    void show(const QString& trouble);

    QLabel* fNote;
    QPushButton* fButton;
    SshConfiguration* fConfiguration = nullptr;
    AlertPresenter* fAlerts = nullptr;
};

} // namespace kelvo
