// The main window as controllers see it, and the dialogs that belong to it.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "support/array_controller.h"
#include "ui/widgets/diagnostics_tab.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/service_list.h"
#include "ui/widgets/widget_controls.h"
#include "ui/widgets/widget_main_view.h"
#include "ui/widgets/widget_open_panel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <stdexcept>

namespace kelvo {
namespace {

class WidgetMainViewTest : public ::testing::Test {
protected:
    WidgetMainViewTest() {
        window.show();
        QApplication::setActiveWindow(&window);
    }
    QPushButton& button() { return window.button(QStringLiteral("ibRevealButton2")); }
    void press(Qt::MouseButton mouseButton, const QPoint& place) {
        QTest::mousePress(window.windowHandle(), mouseButton, Qt::NoModifier, place);
        QTest::mouseRelease(window.windowHandle(), mouseButton, Qt::NoModifier, place);
    }
    QPoint middleOfTheButton() { return button().mapTo(&window, button().rect().center()); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};
    WidgetMainView view{window};
};

TEST_F(WidgetMainViewTest, RightPress_IsToldWithWhetherItLiesInside) {
    const WidgetControl control(button());
    std::vector<bool> told;
    Subscription monitor =
        view.monitorRightMouseDown(control, [&](bool inside) { told.push_back(inside); });
    press(Qt::RightButton, middleOfTheButton());
    press(Qt::RightButton, QPoint(5, 60));
    press(Qt::LeftButton, QPoint(5, 60));
    EXPECT_EQ(told, (std::vector<bool>{true, false}));
    monitor = {};
    press(Qt::RightButton, middleOfTheButton());
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(WidgetMainViewTest, LeftClick_StillReachesTheButton) {
    int clicks = 0;
    window.setAction(QStringLiteral("ibRevealButton2"), [&] { ++clicks; });
    const WidgetControl control(button());
    const Subscription monitor = view.monitorRightMouseDown(control, [](bool) {});
    press(Qt::LeftButton, middleOfTheButton());
    EXPECT_EQ(clicks, 1);
}

TEST_F(WidgetMainViewTest, NothingFirstResponder_TakesTheFocusAway) {
    window.ibStartButton().setFocus();
    ASSERT_TRUE(window.ibStartButton().hasFocus());
    view.makeNothingFirstResponder();
    EXPECT_FALSE(window.ibStartButton().hasFocus());
}

TEST_F(WidgetMainViewTest, ConnectionTest_HasItsSignWhileItRuns) {
    window.showTab(QStringLiteral("remote"));
    const auto& sign = *window.findChild<QWidget*>(QStringLiteral("testBusySign"));
    EXPECT_FALSE(sign.isVisible());
    view.showTesting(true);
    EXPECT_TRUE(sign.isVisible());
    view.showTesting(false);
    EXPECT_FALSE(sign.isVisible());
}

TEST_F(WidgetMainViewTest, Task_IsShownOnTheRemoteTab) {
    window.showTab(QStringLiteral("remote"));
    const auto& row = *window.findChild<QWidget*>(QStringLiteral("busyRow"));
    EXPECT_FALSE(row.isVisible());
    view.showTask(RemoteTaskKind::OpeningFolder);
    EXPECT_TRUE(row.isVisible());
    view.showTask(RemoteTaskKind::None);
    EXPECT_FALSE(row.isVisible());
}

TEST_F(WidgetMainViewTest, FieldThatEndedEditing_GivesItsFocusUpOnce) {
    window.showTab(QStringLiteral("remote"));
    auto* field = window.findChild<QLineEdit*>(QStringLiteral("remoteUser"));
    auto* other = window.findChild<QLineEdit*>(QStringLiteral("remotePath"));
    const auto text = textField(*field);
    field->setFocus();
    text->resignFirstResponder();
    EXPECT_TRUE(other->hasFocus()) << "the next place, not nowhere";
    window.ibStartButton().setFocus();
    text->resignFirstResponder();
    EXPECT_EQ(window.focusWidget(), &window.ibStartButton()) << "only its own focus";
}

TEST_F(WidgetMainViewTest, Attention_FollowsWhetherTheWindowCanBeSeen) {
    using enum Attention;
    std::vector<Attention> told;
    Subscription observed =
        view.observeAttention([&told](Attention attention) { told.push_back(attention); });
    EXPECT_EQ(told, std::vector{Seen});
    window.hide();
    EXPECT_EQ(told, (std::vector{Seen, Unseen}));
    window.show();
    window.showMinimized();
    EXPECT_EQ(told.back(), Unseen);
    window.showNormal();
    EXPECT_EQ(told.back(), Seen);
    const std::size_t sofar = told.size();
    observed.reset();
    window.hide();
    EXPECT_EQ(told.size(), sofar);
}

TEST_F(WidgetMainViewTest, HiddenApplication_ComesBackToTheFront) {
    int ends = 0;
    WidgetApplication application(window, [&] { ++ends; });
    application.hide();
    EXPECT_FALSE(window.isVisible());
    application.bringToFront();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(ends, 0);
}

TEST_F(WidgetMainViewTest, FoundServices_AreRowsOfPlainText) {
    ArrayController list;
    DNSSD_Service service;
    service.name = QStringLiteral("<b>Mac</b>");
    service.ip4Address = QStringLiteral("10.0.0.1");
    list.setContent(DNSSD_Services{service});
    DiagnosticsTab tab;
    QTableView& table = tab.foundServices();
    showServices(list, table);
    const QAbstractItemModel& model = *table.model();
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.index(0, 0).data().toString(), u"<b>Mac</b>");
    EXPECT_EQ(list.selectionIndex(), -1);
    table.selectRow(0);
    EXPECT_EQ(list.selectionIndex(), 0);
    list.setContent(DNSSD_Services{service, service});
    EXPECT_EQ(model.rowCount(), 2);
    list.setContent(std::nullopt);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(list.content(), std::nullopt);
}

class WidgetOpenPanelTest : public ::testing::Test {
protected:
    WidgetOpenPanelTest() {
        QDir(folder.path()).mkdir(QStringLiteral("Movies"));
        QFile file(folder.filePath(QStringLiteral("a.mov")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        parent.show();
    }

    /// Opens the panel and has `act` do what a person does in it.
    std::optional<QString> choose(const std::function<void(QFileDialog&)>& act) {
        QTimer::singleShot(0, &parent, [this, act] {
            auto* dialog = parent.findChild<QFileDialog*>();
            ASSERT_TRUE(dialog);
            title = dialog->windowTitle();
            act(*dialog);
            if (dialog->isVisible()) {
                ADD_FAILURE() << "the panel still stands open";
                dialog->reject();
            }
        });
        return panel.selectDirectoryUrl();
    }
    static QPushButton* openButton(QFileDialog& dialog) {
        return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
    }
    static void pressOpen(QFileDialog& dialog) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return openButton(dialog)->isEnabled(); }, 2000));
        openButton(dialog)->click();
    }
    /// The rows that can be seen, of the test's folder.
    QAbstractItemView& list(QFileDialog& dialog) {
        dialog.setDirectory(folder.path());
        for (const char* name : {"listView", "treeView"}) {
            auto* rows = dialog.findChild<QAbstractItemView*>(QString::fromLatin1(name));
            if (rows->isVisible())
                return *rows;
        }
        throw std::runtime_error("the panel has no list");
    }
    /// The row named `name`, once the panel has read it.
    static QModelIndex row(QAbstractItemView& rows, QStringView name) {
        QModelIndex found;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            for (int at = 0; at < rows.model()->rowCount(rows.rootIndex()); ++at) {
                const QModelIndex each = rows.model()->index(at, 0, rows.rootIndex());
                if (each.data().toString() == name)
                    found = each;
            }
            return found.isValid();
        }));
        return found;
    }

    const QTemporaryDir folder;
    QWidget parent;
    WidgetOpenPanel panel{parent};
    QString title;
};

TEST_F(WidgetOpenPanelTest, Folder_IsChosen) {
    const QString wanted = folder.filePath(QStringLiteral("Movies"));
    EXPECT_EQ(choose([&](QFileDialog& dialog) {
                  dialog.selectFile(wanted);
                  pressOpen(dialog);
              }),
              wanted);
    EXPECT_EQ(title, u"Select Directory");
}

TEST_F(WidgetOpenPanelTest, FileClicked_IsOpenedByTheButton) {
    for (const QFileDialog::ViewMode mode : {QFileDialog::List, QFileDialog::Detail}) {
        EXPECT_EQ(choose([&](QFileDialog& dialog) {
                      dialog.setViewMode(mode);
                      auto& rows = list(dialog);
                      const QModelIndex file = row(rows, u"a.mov");
                      QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                                        rows.visualRect(file).center());
                      pressOpen(dialog);
                  }),
                  folder.filePath(QStringLiteral("a.mov")));
    }
}

TEST_F(WidgetOpenPanelTest, FileReachedByKeys_IsOpenedByReturnAndByTheButton) {
    for (const bool byReturn : {true, false}) {
        EXPECT_EQ(choose([&](QFileDialog& dialog) {
                      auto& rows = list(dialog);
                      const int file = row(rows, u"a.mov").row();
                      const QModelIndex other = row(rows, u"Movies");
                      rows.setCurrentIndex(other);
                      QTest::keyClick(&rows, file > other.row() ? Qt::Key_Down : Qt::Key_Up);
                      EXPECT_EQ(rows.currentIndex().data().toString(), u"a.mov");
                      if (byReturn)
                          QTest::keyClick(&rows, Qt::Key_Return);
                      else
                          pressOpen(dialog);
                  }),
                  folder.filePath(QStringLiteral("a.mov")));
    }
}

TEST_F(WidgetOpenPanelTest, FileTyped_IsOpenedByReturnAndByTheButton) {
    for (const bool byReturn : {true, false}) {
        EXPECT_EQ(choose([&](QFileDialog& dialog) {
                      row(list(dialog), u"a.mov");
                      auto* field = dialog.findChild<QLineEdit*>();
                      field->setFocus();
                      QTest::keyClicks(field, QStringLiteral("a.mov"));
                      if (byReturn)
                          QTest::keyClick(field, Qt::Key_Return);
                      else
                          pressOpen(dialog);
                  }),
                  folder.filePath(QStringLiteral("a.mov")));
    }
}

TEST_F(WidgetOpenPanelTest, FolderClicked_IsOpenedByTheButtonAndNothingThatIsNotThereIs) {
    EXPECT_EQ(choose([&](QFileDialog& dialog) {
                  auto& rows = list(dialog);
                  const QModelIndex inside = row(rows, u"Movies");
                  auto* field = dialog.findChild<QLineEdit*>();
                  QTest::keyClicks(field, QStringLiteral("b.mov"));
                  EXPECT_FALSE(openButton(dialog)->isEnabled());
                  field->clear();
                  QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                                    rows.visualRect(inside).center());
                  pressOpen(dialog);
              }),
              folder.filePath(QStringLiteral("Movies")));
}

TEST_F(WidgetOpenPanelTest, Words_SpeakOfFilesToo) {
    choose([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.labelText(QFileDialog::FileName), u"&Folder or file:");
        for (const char* name : {"fileTypeLabel", "fileTypeCombo"})
            EXPECT_FALSE(dialog.findChild<QWidget*>(QString::fromLatin1(name))->isVisible());
        dialog.reject();
    });
}

TEST_F(WidgetOpenPanelTest, Cancelled_GivesNothing) {
    EXPECT_EQ(choose([](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

} // namespace
} // namespace kelvo
