// What the window shows fits into it: at its usual size, with large letters, with long names.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/widgets/checklist_view.h"
#include "ui/widgets/clear_box.h"
#include "ui/widgets/health_view.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/sync_tab.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

/// With letters of the size in which the program comes up on a desktop without settings.
class RoomTest : public ::testing::Test {
protected:
    ~RoomTest() override { QApplication::setFont(usual); }

    void setLetters(int pixels) {
        QFont font = usual;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    }

    MainWindow& open(QSize size = {}) {
        mainQueue.runDue();
        window = std::make_unique<MainWindow>(defaults, mainQueue);
        if (size.isValid())
            window->resize(size);
        window->show();
        settle();
        return *window;
    }
    void settle() {
        mainQueue.runDue();
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
    }
    /// Null on a page that has none.
    QScrollArea* areaOn(const QString& tab) {
        window->showTab(tab);
        settle();
        QScrollArea* shown = nullptr;
        for (QScrollArea* area : window->findChildren<QScrollArea*>(QStringLiteral("scrollArea"))) {
            if (area->isVisible())
                shown = area;
        }
        return shown;
    }
    /// How many pixels of the page lie below the window.
    int hiddenBelow(const char* tab) {
        return areaOn(QString::fromLatin1(tab))->verticalScrollBar()->maximum();
    }
    void expectNothingAside() {
        for (const MainWindow::Tab& tab : window->tabs()) {
            if (const QScrollArea* area = areaOn(tab.identifier)) {
                EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << qPrintable(tab.identifier);
                for (const QWidget* part : area->widget()->findChildren<QWidget*>()) {
                    if (part->isVisible() && part->minimumSizeHint().width() > area->width())
                        ADD_FAILURE() << qPrintable(part->objectName()) << " is too wide";
                    if (part->isVisible() && qobject_cast<const QAbstractButton*>(part)) {
                        EXPECT_GE(part->height(), part->heightForWidth(part->width()))
                            << qPrintable(part->objectName());
                    }
                }
            }
        }
    }

    const QFont usual = QApplication::font();
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    std::unique_ptr<MainWindow> window;
};

TEST_F(RoomTest, Health_KeepsTheRoomOfThreeLinesWhateverItSays) {
    for (const int pixels : {12, 24}) {
        setLetters(pixels);
        HealthView view;
        const QFontMetrics letters(view.font());
        EXPECT_GE(view.minimumSizeHint().height(), 3 * letters.lineSpacing()) << pixels;
        EXPECT_GE(view.minimumSizeHint().width(), 24 * letters.averageCharWidth()) << pixels;
    }
}

TEST_F(RoomTest, FirstDay_IsSeenWholeAtTheUsualSize) {
    setLetters(12);
    defaults.setObject(prefRsyncWithSSH, true);
    open();
    const Remedy remedy = Remedy::ShowRemoteTab;
    window->syncTab().checklist().setLines(
        {{.text = QStringLiteral("No Mac is chosen yet."), .remedy = remedy},
         {.text = QStringLiteral("The user name on the Mac is missing."), .remedy = remedy},
         {.text = QStringLiteral("The program has no ssh key of its own yet."), .remedy = remedy},
         {.text = QStringLiteral("No destination folder is chosen yet."), .remedy = remedy}});
    window->remoteTab().setKeyState(KeyState::NoKey);
    window->syncTab().setNetworkStatus(QStringLiteral("Connected to the network"));
    for (const char* tab : {"sync", "remote", "prefs"})
        EXPECT_EQ(hiddenBelow(tab), 0) << tab;
}

TEST_F(RoomTest, LettersOfDoubleSize_NeedNoScrollingAside) {
    setLetters(24);
    defaults.setObject(prefAdvancedShown, true);
    defaults.setObject(prefShowDiagnostics, true);
    open({900, 700});
    EXPECT_LE(window->minimumSizeHint().width(), 900);
    expectNothingAside();
}

TEST_F(RoomTest, NamesWithoutABlank_NeedNoScrollingAside) {
    const QString name(200, u'm');
    for (const QStringView key :
         {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath, prefSampleRemoteFullPath})
        defaults.setObject(key, name);
    defaults.setObject(prefRsyncWithSSH, true);
    defaults.setObject(prefAdvancedShown, true);
    open({640, 480});
    window->remoteTab().setKeyState(KeyState::NoKey);
    window->remoteTab().setConnection(
        {.answer = HostAnswer{.target = name, .cause = PassCause::Unknown, .lastLine = name},
         .asked = QDateTime::currentDateTimeUtc()});
    expectNothingAside();
}

TEST_F(RoomTest, ScreenSmallerThanTheWindow_IsNotLeft) {
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    open();
    EXPECT_EQ(window->size(), QSize(760, 600).boundedTo(screen));
    defaults.setObject(prefMainWindowSize, QStringLiteral("100000x100000"));
    open();
    EXPECT_EQ(window->size(), screen);
}

TEST_F(RoomTest, TaskOnTheRemoteSide_MovesNothing) {
    setLetters(12);
    open();
    const QScrollArea& area = *areaOn(QStringLiteral("remote"));
    const auto places = [&] {
        QMap<QString, QRect> all;
        for (const QWidget* each : area.widget()->findChildren<QWidget*>()) {
            if (each->isVisible())
                all.insert(each->objectName(),
                           QRect(each->mapTo(window.get(), QPoint(0, 0)), each->size()));
        }
        return all;
    };
    const auto before = places();
    const int height = area.height();
    window->remoteTab().setTask(RemoteTaskKind::OpeningFolder);
    settle();
    EXPECT_LT(area.height(), height) << "the row has its own place";
    EXPECT_EQ(places(), before);
    window->remoteTab().setTask(RemoteTaskKind::Ending);
    settle();
    EXPECT_EQ(places(), before);
    window->remoteTab().setTask(RemoteTaskKind::None);
    settle();
    EXPECT_EQ(area.height(), height);
    EXPECT_EQ(places(), before);
    window->resize(760, 400);
    settle();
    EXPECT_TRUE(area.verticalScrollBar()->isVisible()) << "it comes back once it is needed";
}

// -- boxes

TEST_F(RoomTest, LongTextOfABox_WrapsAndStaysWhatItIs) {
    QWidget page;
    CheckBox box(QStringLiteral("Show a &notice when passes turn bad"), &page);
    const QString whole = box.text();
    const int line = box.sizeHint().height();
    EXPECT_EQ(box.heightForWidth(box.sizeHint().width()), line);
    const int narrow = box.sizeHint().width() / 2;
    EXPECT_GT(box.heightForWidth(narrow), box.fontMetrics().lineSpacing() * 2 - 1);
    EXPECT_LE(box.minimumSizeHint().width(), narrow);
    box.resize(narrow, box.heightForWidth(narrow));
    page.show();
    QApplication::setActiveWindow(&page);
    EXPECT_EQ(box.text(), whole);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(narrow / 2, box.height() - 3));
    EXPECT_TRUE(box.isChecked()) << "the second line is part of it";
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&box] { return !box.isChecked(); }))
        << "it is pressed for a moment";
}

TEST_F(RoomTest, WrappedText_LosesNoWord) {
    const QFont font;
    const QString text = QStringLiteral("one two three");
    EXPECT_EQ(wrappedText(text, font, 10'000), text);
    EXPECT_EQ(wrappedText(text, font, 1), u"one\ntwo\nthree");
    EXPECT_EQ(wrappedText(QString(), font, 1), QString());
}

TEST_F(RoomTest, FrameOfABox_IsSeenOnADarkGroundOfTheToolkitsOwnStyle) {
    const auto fusion = std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("fusion")));
    const auto windows = std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("windows")));
    const auto frameOn = [](int ground, const QStyle& style) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, ground < 128 ? Qt::white : Qt::black);
        palette.setColor(QPalette::Window, QColor(ground, ground, ground));
        showFrame(palette, style);
        return palette.color(QPalette::Window).red();
    };
    EXPECT_GT(frameOn(32, *fusion), 100);
    EXPECT_GT(frameOn(127, *fusion), 127);
    EXPECT_EQ(frameOn(128, *fusion), 128);
    EXPECT_EQ(frameOn(240, *fusion), 240);
    EXPECT_EQ(frameOn(32, *windows), 32);
}

TEST_F(RoomTest, WrappedText_FillsItsLinesAndKeepsTheSignForTheKey) {
    const QFont font;
    const QFontMetrics letters(font);
    const QString text = QStringLiteral("one two three &four five");
    const int width = letters.horizontalAdvance(QStringLiteral("one two three"));
    const QStringList lines = wrappedText(text, font, width + 1).split(u'\n');
    EXPECT_EQ(lines.first(), u"one two three");
    EXPECT_EQ(lines.join(u' '), text) << "no blank at the ends of lines";
    const int whole = letters.size(Qt::TextShowMnemonic, text).width();
    EXPECT_EQ(wrappedText(text, font, whole), text);
    EXPECT_NE(wrappedText(text, font, whole - 1), text);
    EXPECT_EQ(wrappedText(text, font, 0), wrappedText(text, font, 1));
    EXPECT_EQ(wrappedText(text, font, -5), wrappedText(text, font, 1));
}

} // namespace
} // namespace kelvo
