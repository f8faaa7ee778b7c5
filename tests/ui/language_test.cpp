// The window in other languages: nothing is left in English, and what is printed stays so.
#include "app/window/language.h"
#include "app/window/window_actions.h"
#include "fakes/view_controller_world.h"
#include "settings/remote_account.h"
#include "support/catalogue.h"
#include "sync/rsync_command.h"
#include "ui/activity_texts.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/application_menu.h"
#include "ui/widgets/bonjour_sheet.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/widget_button.h"
#include "ui/widgets/widget_controls.h"
#include "ui/words.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTranslator>

#include <gtest/gtest.h>

#include <set>

namespace kelvo {
namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

/// Marks every text that is looked up, and keeps what was asked for.
class Marks final : public QTranslator {
public:
    Marks() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        asked.emplace(text(context), text(source));
        return *source ? QString(u'«' + text(source) + u'»') : QString();
    }

    mutable std::set<Asked> asked;
};

/// A language that the program speaks while this lives.
class Language {
public:
    explicit Language(const QString& name) { isLoaded = speak(*qApp, name); }
    ~Language() {
        qDeleteAll(qApp->findChildren<QTranslator*>());
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    }
    bool isLoaded = false;
};

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList finishedLanguages() {
    return text(contents(QStringLiteral(KELVO_TRANSLATIONS "/finished.txt")))
        .split(u'\n', Qt::SkipEmptyParts);
}

/// Everything that `top` and what is in it says to eyes and ears, with who says it.
std::vector<std::pair<QString, QString>> textsOf(QWidget& top) {
    std::vector<std::pair<QString, QString>> texts;
    QList<QWidget*> widgets = top.findChildren<QWidget*>();
    widgets.prepend(&top);
    for (QWidget* widget : widgets) {
        const QString who = widget->objectName() + u' ' + text(widget->metaObject()->className());
        const auto says = [&](const QString& what) { texts.emplace_back(who, what); };
        says(widget->accessibleName());
        says(widget->accessibleDescription());
        says(widget->toolTip());
        if (const auto* label = qobject_cast<QLabel*>(widget))
            says(label->text());
        if (const auto* button = qobject_cast<QAbstractButton*>(widget))
            says(button->text());
        if (const auto* group = qobject_cast<QGroupBox*>(widget))
            says(group->title());
        if (const auto* field = qobject_cast<QLineEdit*>(widget))
            says(field->placeholderText());
        if (const auto* number = qobject_cast<QDoubleSpinBox*>(widget))
            says(number->specialValueText());
        if (const auto* tabs = qobject_cast<QTabWidget*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                says(tabs->tabText(i));
        }
        if (const auto* choice = qobject_cast<QComboBox*>(widget)) {
            for (int i = 0; i < choice->count(); ++i)
                says(choice->itemText(i));
        }
        if (const auto* header = qobject_cast<QHeaderView*>(widget);
            header && header->model() && header->orientation() == Qt::Horizontal) {
            for (int i = 0; i < header->count(); ++i)
                says(header->model()->headerData(i, Qt::Horizontal).toString());
        }
    }
    for (const QAction* action : top.findChildren<QAction*>())
        texts.emplace_back(action->objectName(), action->text());
    return texts;
}

bool hasLetters(const QString& text) {
    return std::ranges::any_of(text, [](QChar sign) { return sign.isLetter(); });
}

/// Of what can be seen in `top`, the titles that take the focus somewhere or press a button.
QStringList mnemonicTitles(const QWidget& top) {
    QStringList titles;
    for (const QWidget* widget : top.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QString title = button                    ? button->text()
                              : label && label->buddy() ? label->text()
                                                        : QString();
        if (widget->isVisible() && !QKeySequence::mnemonic(title).isEmpty())
            titles.append(title);
    }
    return titles;
}

class LanguageTest : public ::testing::Test, public ViewControllerWorld {
protected:
    std::unique_ptr<MainWindow> makeWindow() {
        auto window = std::make_unique<MainWindow>(defaults, mainQueue);
        window->activityTab().setParts({.store = passStore,
                                        .workspace = workspace,
                                        .mainQueue = mainQueue,
                                        .bgQueue = bgQueue,
                                        .defaults = defaults,
                                        .destination = [] { return QString(); }});
        window->setMenuBar(menuOf(*window));
        window->show();
        for (const MainWindow::Tab& tab : window->tabs()) {
            window->showTab(tab.identifier);
            QCoreApplication::processEvents();
        }
        return window;
    }

    static ApplicationMenu* menuOf(MainWindow& window) {
        QStringList labels;
        for (const MainWindow::Tab& tab : window.tabs())
            labels.append(tab.label);
        ApplicationMenuActions actions; // An entry that would do nothing is left out.
        for (auto* action :
             {&actions.quitAndRelaunch, &actions.closeWindow, &actions.quit, &actions.showSettings,
              &actions.startOrStop, &actions.syncNow, &actions.cancelPass, &actions.setupStatusItem,
              &actions.removeStatusItem, &actions.delegateQuitAndRelaunch, &actions.setupWatchdog,
              &actions.about, &actions.openLogFolder})
            *action = [] {};
        actions.showTab = [](int) {};
        return new ApplicationMenu(actions, labels, &window);
    }
};

TEST_F(LanguageTest, EveryTextOfTheWindow_IsLookedUp) {
    const Marks marks;
    const auto window = makeWindow();
    BonjourSheet sheet({defaults, mainQueue, bgQueue, console, dnssdBrowser}, window.get());
    sheet.show();
    const auto texts = textsOf(*window);
    EXPECT_GT(texts.size(), 400U);
    // A command is one in every language, and so is the ending of a file's name.
    const QRegularExpression noWords(text("\\A(commandExample |kind_\\w+ QCheckBox\\z)"));
    for (const auto& [who, said] : texts) {
        if (noWords.match(who).hasMatch())
            continue;
        EXPECT_TRUE(!hasLetters(said) || said.contains(u'«'))
            << qPrintable(who) << " says " << qPrintable(said);
    }
}

TEST_F(LanguageTest, EveryTextThatIsLookedUp_IsInTheCatalogues) {
    const Marks marks;
    const auto window = makeWindow();
    BonjourSheet sheet({defaults, mainQueue, bgQueue, console, dnssdBrowser}, window.get());
    load();
    button.performClick();
    bgQueue.runAll();
    mainQueue.advance(30);
    EXPECT_GT(marks.asked.size(), 200U);
    for (const auto& [context, source] : unknownAmong(marks.asked))
        ADD_FAILURE() << qPrintable(context) << ": " << qPrintable(source);
}

TEST_F(LanguageTest, TextsFromBelow_AreTranslatedWhereTheyAreShown) {
    const Language german(text("de"));
    ASSERT_TRUE(german.isLoaded);
    const auto window = makeWindow();
    WidgetButton start(window->ibStartButton(), [](Control*) {});
    start.setTitle(text("click to stop bonjour rsync"));
    EXPECT_EQ(window->ibStartButton().text(), text("Klicken, um rsync mit Bonjour anzuhalten"));
    WidgetStatusField status(window->ibStatusTextField());
    status.setAttributedStringValue(getAttributedString(
        text("something went wrong - waiting to retry again... [3]"), StatusColor::Red, true));
    EXPECT_EQ(window->findChild<QLabel*>(text("statusText"))->text(),
              text("Etwas ging schief - gleich folgt ein neuer Versuch... [3]"));
    // Each text is asked of those who say it.
    QStringList said;
    for (const char* user : {"-u", "a\nb", "a:b"})
        said << accountFault({.user = text(user), .host = text("h")}, u"/k");
    for (const char* name : {"-h", "a\nb", "a/b"})
        said << accountFault({.user = text("u"), .host = text(name)}, u"/k");
    said << commandFault(text("%@1 %@2"), {text("-s"), text("/d"), {}})
         << commandFault(text("%@1 %@2"), {text("/s"), text("-d"), {}})
         << commandFault(text("%@1 %@2"), {text("/s"), text("h:d"), {}})
         << commandFault(text("%@1 %@2"), {text("ann@-h:/s"), text("/d"), {}});
    for (const QChar sign : {QChar(u'\n'), QChar(0xd800)}) {
        const QString odd = u'a' + QString(sign) + u'b';
        said << commandFault(text("%@1 %@2"), {odd, text("/d"), {}})
             << commandFault(text("%@1 %@2"), {text("/s"), odd, {}})
             << accountFault({.user = odd, .host = text("h")}, u"/k")
             << accountFault({.user = text("u"), .host = odd}, u"/k");
    }
    for (const QString& english : said) {
        EXPECT_FALSE(english.isEmpty());
        EXPECT_NE(Words::shown(english), english);
    }
}

TEST_F(LanguageTest, TextThatIsShorterThanItsPattern_IsShownAsItIs) {
    const QString text =
        QStringLiteral("Please make sure remote host is on this network\nor\nPlease "
                       "check username...\n\n");
    EXPECT_EQ(Words::shown(text), text);
}

TEST_F(LanguageTest, WhatIsPrintedLoggedAndStored_StaysEnglish) {
    const auto lines = [](bool translated) {
        const std::unique_ptr<Language> german =
            translated ? std::make_unique<Language>(text("de")) : nullptr;
        ViewControllerWorld world;
        MainWindow window{world.defaults, world.mainQueue};
        const auto path = std::make_shared<WidgetPathControl>(window.fNsPathControl1());
        OnceButtons once;
        sendWindowActions(window, world.controller, world.workspace, path, once);
        world.load();
        window.show();
        for (const MainWindow::Tab& tab : window.tabs())
            window.showTab(tab.identifier);
        world.defaults.setObject(prefIsScanning, false);
        world.defaults.setObject(prefRemoteUsername, text("u"));
        world.defaults.setObject(prefRemoteBonjourName, text("h"));
        for (int i = 0; i < 2; ++i) {
            world.button.performClick();
            world.bgQueue.runAll();
            world.mainQueue.advance(20);
        }
        QStringList all = world.console.printed() + world.console.logged();
        for (const AttributedString& shown : world.field->shown)
            all.append(shown.string);
        for (const QStringView key : {perfFirstLineMessage, prefVersionDisplayString,
                                      prefStatusTextfieldString, prefMainWindowTab})
            all.append(world.defaults.stringForKey(key).value_or(QString()));
        // Addresses differ from run to run.
        return all.replaceInStrings(QRegularExpression(text("0x[0-9a-f]+")), text("0x"));
    };
    const QStringList english = lines(false);
    EXPECT_GT(english.size(), 50);
    EXPECT_EQ(lines(true), english);
}

TEST_F(LanguageTest, Export_IsTheSameInEachLanguage) {
    const std::vector<PassRecord> records(1);
    const QString english = passesAsCsv(records);
    const Language german(text("de"));
    EXPECT_EQ(passesAsCsv(records), english);
    EXPECT_TRUE(passReport(records[0]).contains(text("Nächster Schritt: "))) << "it is loaded";
}

TEST_F(LanguageTest, MnemonicsOfATab_DifferFromEachOtherAndFromTheMenus) {
    for (const QString& name : finishedLanguages()) {
        const Language language(name);
        ASSERT_TRUE(language.isLoaded) << qPrintable(name);
        for (const bool remote : {true, false}) {
            defaults.setObject(prefRsyncWithSSH, remote);
            const auto window = makeWindow();
            QSet<QString> menus;
            for (const QAction* menu : window->menuBar()->actions())
                menus.insert(QKeySequence::mnemonic(menu->text()).toString());
            for (const MainWindow::Tab& tab : window->tabs()) {
                window->showTab(tab.identifier);
                QSet<QString> seen = menus;
                for (const QString& title : mnemonicTitles(*window)) {
                    const QString key = QKeySequence::mnemonic(title).toString();
                    EXPECT_FALSE(seen.contains(key))
                        << qPrintable(name + u", " + tab.label + u": " + title);
                    seen.insert(key);
                }
            }
        }
    }
}

TEST_F(LanguageTest, MnemonicsOfAMenu_AreDifferent) {
    for (const QString& name : finishedLanguages()) {
        const Language language(name);
        const auto window = makeWindow();
        QSet<QString> bar;
        for (const QAction* menu : window->menuBar()->actions()) {
            const QString key = QKeySequence::mnemonic(menu->text()).toString();
            EXPECT_FALSE(key.isEmpty() || bar.contains(key)) << qPrintable(menu->text());
            bar.insert(key);
            QSet<QString> entries;
            for (const QAction* entry : menu->menu()->actions()) {
                const QString own = QKeySequence::mnemonic(entry->text()).toString();
                EXPECT_TRUE(entry->isSeparator() || !(own.isEmpty() || entries.contains(own)))
                    << qPrintable(entry->text());
                entries.insert(own);
            }
        }
    }
}

TEST_F(LanguageTest, Catalogue_IsThatOfTheDearestLanguageThereIs) {
    const auto found = [](const char* languages) {
        return catalogueFor(text(languages).split(u' '));
    };
    EXPECT_EQ(found("de-AT"), u"de");
    EXPECT_EQ(found("de"), u"de");
    EXPECT_EQ(found("fr-CA de"), u"fr");
    EXPECT_EQ(found("en-GB de"), u"") << "who reads English first, reads English";
    EXPECT_EQ(found("C"), u"");
    EXPECT_EQ(found("fi sv de"), u"de");
    EXPECT_EQ(found("fi"), u"");
    EXPECT_EQ(found("zh-CN"), u"zh_CN");
    EXPECT_EQ(found("zh-Hans-SG"), u"zh_CN");
    EXPECT_EQ(found("zh-TW"), u"") << "written with other signs";
    EXPECT_EQ(found("ar-EG"), u"ar");
    EXPECT_EQ(catalogueFor({}), u"");
}

TEST_F(LanguageTest, Messages_AreThoseOfCWhereTheFirstVariableThatIsSetSaysSo) {
    const QByteArrayList names{"LC_ALL", "LC_MESSAGES", "LANG"};
    QByteArrayList before;
    for (const QByteArray& name : names)
        before.append(qgetenv(name));
    const auto areC = [&names](const QByteArrayList& values) {
        for (int i = 0; i < names.size(); ++i)
            qputenv(names[i], values[i]);
        return messagesAreC();
    };
    EXPECT_TRUE(areC({"", "", ""}));
    EXPECT_TRUE(areC({"C", "de_DE.UTF-8", "de_DE.UTF-8"}));
    EXPECT_FALSE(areC({"de_DE.UTF-8", "C", "C"}));
    EXPECT_TRUE(areC({"", "POSIX", "de_DE.UTF-8"}));
    EXPECT_FALSE(areC({"", "de_DE.UTF-8", "C"}));
    EXPECT_TRUE(areC({"", "", "C.UTF-8"}));
    EXPECT_FALSE(areC({"", "", "de_DE.UTF-8"}));
    for (int i = 0; i < names.size(); ++i)
        before[i].isNull() ? qunsetenv(names[i]) : qputenv(names[i], before[i]);
}

TEST_F(LanguageTest, Speak_TurnsTheWindowTheWayTheLanguageIsWritten) {
    EXPECT_FALSE(speak(*qApp, text("xx")));
    {
        const Language german(text("de"));
        EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }
    if (!finishedLanguages().contains(text("ar")))
        GTEST_SKIP() << "there are no Arabic words yet";
    const Language arabic(text("ar"));
    ASSERT_TRUE(arabic.isLoaded);
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
}

/// The variables that say how to speak, for this process and those it starts.
void speakAs(const QByteArray& language) {
    qunsetenv("LC_ALL");
    qunsetenv("LC_MESSAGES");
    qunsetenv("LC_NUMERIC");
    qputenv("LANG", language);
}

TEST_F(LanguageTest, Numbers_AreThoseThatTheEnvironmentAsksFor) {
    const QByteArray before = qgetenv("LANG");
    const auto numbersAfter = [](const QLocale& first) {
        QLocale::setDefault(first);
        speakTheirLanguage(*qApp);
        std::fputs(qPrintable(QLocale().toString(1234.5, 'f', 1)), stderr);
        std::_Exit(0);
    };
    // Each in a process of its own: the environment is read once.
    speakAs("de_DE.UTF-8");
    EXPECT_EXIT(numbersAfter(QLocale::c()), ::testing::ExitedWithCode(0), "^1\\.234,5$");
    speakAs("C.UTF-8");
    EXPECT_EXIT(numbersAfter(QLocale(QLocale::Swedish)), ::testing::ExitedWithCode(0), "^1.234,5$")
        << "nobody asked for anything";
    speakAs(before);
}

TEST_F(LanguageTest, NumbersAndSizes_FollowTheLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(bytesText(1'500'000'000), text("1,5 GB"));
    EXPECT_EQ(bytesText(212'000'000'000), text("212 GB"));
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 12345), text("12.345 files"));
    QLocale::setDefault(before);
    EXPECT_EQ(bytesText(1'500'000'000), text("1.5 GB"));
}

} // namespace
} // namespace kelvo
