// RemoteTab: the way to the Mac that movies are pulled from, in four steps.
#pragma once

#include "support/remote_task_kind.h"
#include "ui/setup_steps.h"
#include "ui/widgets/late_tab.h"

#include <array>
#include <memory>
#include <optional>

class QLineEdit;
class QPushButton;

namespace Ui {
class RemoteTab;
}

namespace kelvo {

class Bindings;
class StepHead;

/// A step that is done folds to one line. It stays open while a person is typing in it, or has
/// unfolded it, until the tab is left. The keyboard focus that was in a step which folds goes on to
/// the next one. Holds its controls from the first time it is shown, or a step of it is opened, on;
/// what it is told before that stands in them then. Main thread only.
class RemoteTab final : public LateTab {
    Q_OBJECT
public:
    /// `bindings` outlives the tab.
    explicit RemoteTab(Bindings& bindings, QWidget* parent = nullptr);
    ~RemoteTab() override;

    /// Whether the connection test is running.
    void setTesting(bool testing);

    /// What a person has set going on the remote side.
    void setTask(RemoteTaskKind kind);

    /// What is known of the key.
    void setKeyState(KeyState state);

    /// What the Mac said. It is spoken when it was asked by the connection test, and when it is not
    /// what it said before.
    void setConnection(const Connection& connection);

    bool wasShown() const { return fWasShown; }

    /// Unfolds the step and puts the keyboard focus on what is to be done there.
    void openStep(SetupStep step);

    /// The same of the step that is next; of the connection when all are done.
    void openNextStep();

Q_SIGNALS:
    /// The tab is shown for the first time.
    void shownFirst();

protected:
    void makeControls() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Step {
        StepHead* head;
        QWidget* body;
        QPushButton* main;              ///< what the step is done with
        std::vector<QLineEdit*> fields; ///< what has to be filled in before
        bool folds = true;
        bool opened = false; ///< stays unfolded though it is done
    };

    void connectStep(SetupStep number);
    void readSettings();
    void update();
    void showStep(SetupStep number);
    void showSource(const SetupLine& account);
    void speakVerdict();
    void markMainButton();
    void finish(SetupStep number);
    void focusOn(SetupStep number);
    bool isFolded(SetupStep number) const;
    bool holdsTheFocus(const Step& step) const;
    Step& stepAt(SetupStep number) { return fSteps[static_cast<std::size_t>(number)]; }

    Bindings& fBindings;
    std::unique_ptr<Ui::RemoteTab> fUi; ///< null until the tab is built
    std::array<Step, cSetupSteps> fSteps{};
    SetupFacts fFacts;
    SetupSteps fShown;
    RemoteTaskKind fTask = RemoteTaskKind::None;
    bool fTesting = false;
    bool fAskingForTheKey = false;
    bool fWasShown = false;
    bool fVerdictIsNews = false; ///< it is spoken as soon as it is shown
    /// What a person has just asked to be done; once it is, the step folds.
    std::optional<SetupStep> fFinishing;
};

} // namespace kelvo
