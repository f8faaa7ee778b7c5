// ProfilesSheet: names a further Mac, or chooses one of those there are, and opens its window.
#pragma once

#include "support/profile.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

namespace Ui {
class ProfilesSheet;
}

namespace kelvo {

class BackgroundQueue;
class DispatchQueue;

/// What the sheet works with; the references outlive it.
struct ProfilesSheetParts {
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    Profile own = {}; ///< that of this window
    /// Which profiles there are; on a background thread, where it may block.
    std::function<std::vector<ProfileState>()> list;
    /// Opens the window of a profile, or brings it to the front: why not, empty when it does.
    std::function<QString(const Profile&)> open;
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
};

/// Window-modal. The list comes in a moment after the sheet. Deleted once closed.
class ProfilesSheet final : public QDialog {
    Q_OBJECT
public:
    ProfilesSheet(ProfilesSheetParts parts, QWidget* parent);
    ~ProfilesSheet() override;

private:
    void setStates(std::vector<ProfileState> states);
    void addRow(const ProfileState& state);
    QString stateText(const ProfileState& state) const;
    void rowChosen();
    void nameEdited();
    void showTrouble(const QString& text);
    const Profile* chosenProfile() const; ///< null without a chosen row
    void openChosen();

    const ProfilesSheetParts fParts;
    std::unique_ptr<Ui::ProfilesSheet> fUi;
    std::vector<ProfileState> fStates;
};

} // namespace kelvo
