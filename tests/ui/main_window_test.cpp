#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "support/preference_keys.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/widget_button.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class MainWindowTest : public ::testing::Test {
protected:
    template <typename Widget>
    Widget* child(const char* name) {
        return window.findChild<Widget*>(QString::fromLatin1(name));
    }

    /// The sign beside the status text: the other label of the field.
    QLabel* sign() {
        for (QLabel* label : window.ibStatusTextField().findChildren<QLabel*>()) {
            if (label->objectName() != u"statusText")
                return label;
        }
        return nullptr;
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};
};

TEST_F(MainWindowTest, NothingSet_SaysWhatIsMissing) {
    EXPECT_EQ(child<QLabel>("sourceText")->text(), u"No source folder chosen yet");
    EXPECT_EQ(child<QLabel>("destinationText")->text(), u"No destination folder chosen yet");
}

TEST_F(MainWindowTest, SettingsChanged_AreShownOnTheNextTurn) {
    defaults.setObject(prefRsyncWithSSH, true);
    defaults.setObject(prefSampleRemoteFullPath, QStringLiteral("ann@mac.local:Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/in <b>box</b>"));
    mainQueue.runDue();
    EXPECT_EQ(child<QLabel>("sourceText")->text(), u"ann@mac.local:Movies");
    EXPECT_EQ(child<QLabel>("destinationText")->text(), u"/in <b>box</b>");
    EXPECT_EQ(child<QLabel>("destinationText")->textFormat(), Qt::PlainText);
    defaults.setObject(prefRsyncWithSSH, false);
    defaults.setObject(prefPath1, QStringLiteral("/cam"));
    mainQueue.runDue();
    EXPECT_EQ(child<QLabel>("sourceText")->text(), u"/cam");
}

TEST_F(MainWindowTest, StartButton_TurnsOverAndSendsItself) {
    int sent = 0;
    WidgetButton button(window.ibStartButton(), [&](Control* sender) {
        ++sent;
        EXPECT_EQ(dynamic_cast<Button*>(sender)->state(), sent % 2);
    });
    button.performClick();
    window.ibStartButton().click();
    EXPECT_EQ(sent, 2);
    button.setTitle(QStringLiteral("click to stop rsync"));
    EXPECT_EQ(window.ibStartButton().text(), u"click to stop rsync");
    EXPECT_EQ(window.ibStartButton().accessibleName(), u"click to stop rsync");
}

TEST_F(MainWindowTest, Trouble_HasASignBesideItsColour) {
    window.show();
    WidgetStatusField field(window.ibStatusTextField());
    field.setAttributedStringValue(
        {QStringLiteral("<i>bad</i>"), StatusColor::Red, TextAlignment::Centered});
    auto* text = child<QLabel>("statusText");
    EXPECT_EQ(text->text(), u"<i>bad</i>");
    EXPECT_EQ(text->textFormat(), Qt::PlainText);
    EXPECT_TRUE(text->alignment() & Qt::AlignHCenter);
    EXPECT_TRUE(sign()->isVisible());
    EXPECT_FALSE(sign()->pixmap().isNull());
    const QColor red = text->palette().color(QPalette::WindowText);
    EXPECT_GT(red.red(), red.green() + red.blue());

    field.setAttributedStringValue(
        {QStringLiteral("fine"), StatusColor::Black, TextAlignment::Natural});
    EXPECT_FALSE(sign()->isVisible());
    EXPECT_TRUE(text->alignment() & Qt::AlignLeft);
    EXPECT_EQ(text->palette().color(QPalette::WindowText),
              window.palette().color(QPalette::WindowText));
    field.clear();
    EXPECT_EQ(text->text(), u"");
}

TEST_F(MainWindowTest, FieldThatIsGone_DropsTheMessage) {
    auto view = std::make_unique<StatusFieldView>();
    WidgetStatusField field(*view);
    view.reset();
    field.setAttributedStringValue(
        {QStringLiteral("late"), StatusColor::Red, TextAlignment::Natural});
    field.clear();
}

TEST_F(MainWindowTest, EveryControl_HasAnAccessibleNameOrText) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue;
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        EXPECT_FALSE(widget->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
            << qPrintable(widget->objectName());
    }
}

} // namespace
} // namespace kelvo
