// Each kind of control bound to a setting, both ways.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/seconds_box.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

constexpr QStringView cKey = u"key";

class BindingsTest : public ::testing::Test {
protected:
    BindingsTest() : other(new QLineEdit) { layout->addWidget(other); }

    template <typename Widget>
    Widget& add() {
        auto* widget = new Widget;
        layout->addWidget(widget);
        return *widget;
    }
    void show() {
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        other->setFocus();
    }
    void setOutside(const QVariant& value) {
        defaults.setObject(cKey, value);
        mainQueue.runDue();
    }
    QVariant stored() const { return defaults.object(cKey); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    Bindings bindings{defaults, mainQueue};
    QWidget window;
    QVBoxLayout* layout = new QVBoxLayout(&window);
    QLineEdit* other;
};

TEST_F(BindingsTest, Text_IsShownAtOnceAndAfterEachChange) {
    defaults.setObject(cKey, QStringLiteral("first"));
    auto& field = add<QLineEdit>();
    bindings.text(field, cKey);
    EXPECT_EQ(field.text(), u"first");
    setOutside(QStringLiteral("second"));
    EXPECT_EQ(field.text(), u"second");
    defaults.removeObject(cKey);
    mainQueue.runDue();
    EXPECT_EQ(field.text(), u"");
}

TEST_F(BindingsTest, HalfTypedText_IsStoredOnlyWhenEditingEnds) {
    auto& field = add<QLineEdit>();
    bindings.text(field, cKey);
    std::vector<QWidget*> ended;
    bindings.setEditingEnded([&](QWidget& edited) { ended.push_back(&edited); });
    show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("studio"));
    EXPECT_FALSE(stored().isValid());
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(stored(), QVariant(QStringLiteral("studio")));
    QTest::keyClicks(&field, QStringLiteral("-2"));
    other->setFocus();
    EXPECT_EQ(stored(), QVariant(QStringLiteral("studio-2")));
    EXPECT_EQ(ended, (std::vector<QWidget*>{&field, &field}));
}

TEST_F(BindingsTest, UntouchedField_StoresNothing) {
    auto& field = add<QLineEdit>();
    bindings.text(field, cKey);
    show();
    field.setFocus();
    other->setFocus();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(defaults.changes().empty());
}

TEST_F(BindingsTest, Escape_BringsTheStoredTextBack) {
    defaults.setObject(cKey, QStringLiteral("kept"));
    auto& field = add<QLineEdit>();
    bindings.text(field, cKey);
    show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("x"));
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(field.text(), u"kept");
    other->setFocus();
    EXPECT_EQ(stored(), QVariant(QStringLiteral("kept")));
}

TEST_F(BindingsTest, ChangeFromOutside_DoesNotTakeHalfTypedTextAway) {
    auto& field = add<QLineEdit>();
    bindings.text(field, cKey);
    show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("mine"));
    setOutside(QStringLiteral("theirs"));
    EXPECT_EQ(field.text(), u"mine");
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(field.text(), u"theirs");
}

TEST_F(BindingsTest, EmptiedText_DropsTheValue) {
    defaults.registerDefaults({{cKey.toString(), QStringLiteral("Movies")}});
    defaults.setObject(cKey, QStringLiteral("Films"));
    auto& field = add<QLineEdit>();
    bindings.text(field, cKey);
    show();
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClick(&field, Qt::Key_Return);
    mainQueue.runDue();
    EXPECT_EQ(stored(), QVariant(QStringLiteral("Movies")));
    EXPECT_EQ(field.text(), u"Movies");
}

TEST_F(BindingsTest, ManyLines_ReturnIsTextAndLeavingStores) {
    auto& field = add<QPlainTextEdit>();
    bindings.text(field, cKey);
    show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("a"));
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClicks(&field, QStringLiteral("b"));
    EXPECT_FALSE(stored().isValid());
    other->setFocus();
    EXPECT_EQ(stored(), QVariant(QStringLiteral("a\nb")));
    setOutside(QStringLiteral("c"));
    EXPECT_EQ(field.toPlainText(), u"c");
}

TEST_F(BindingsTest, RadioButtons_StoreWhatIsSwitchedOnOnce) {
    auto& yes = add<QRadioButton>();
    auto& no = add<QRadioButton>();
    bindings.flag(yes, cKey);
    bindings.flag(no, cKey, true);
    EXPECT_FALSE(yes.isChecked());
    EXPECT_TRUE(no.isChecked());
    yes.click();
    no.click();
    EXPECT_EQ(defaults.changes(), (std::vector<std::pair<QString, QVariant>>{
                                      {cKey.toString(), true}, {cKey.toString(), false}}));
    setOutside(true);
    EXPECT_TRUE(yes.isChecked());
    EXPECT_FALSE(no.isChecked());
    EXPECT_EQ(defaults.changes().size(), 3U) << "showing a value stores nothing";
}

TEST_F(BindingsTest, Choice_StoresTheItemsNumber) {
    auto& box = add<QComboBox>();
    box.addItem(QStringLiteral("none"), 100);
    box.addItem(QStringLiteral("newer"), 101);
    bindings.choice(box, cKey, [](int number) { return QStringLiteral("other %1").arg(number); });
    EXPECT_EQ(box.currentIndex(), -1) << "nothing is stored";
    setOutside(101);
    EXPECT_EQ(box.currentText(), u"newer");
    show();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(defaults.integerForKey(cKey), 100);
}

TEST_F(BindingsTest, ValueWithoutAnItem_IsKeptAndShown) {
    auto& box = add<QComboBox>();
    box.addItem(QStringLiteral("none"), 100);
    defaults.setObject(cKey, 105);
    bindings.choice(box, cKey, [](int number) { return QStringLiteral("other %1").arg(number); });
    EXPECT_EQ(box.currentText(), u"other 105");
    EXPECT_EQ(defaults.integerForKey(cKey), 105);
    setOutside(104);
    EXPECT_EQ(box.currentText(), u"other 104");
    setOutside(100);
    EXPECT_EQ(box.count(), 1);
}

TEST_F(BindingsTest, Number_IsStoredWhenTypingEndsAndAtEachStep) {
    auto& box = add<QDoubleSpinBox>();
    box.setKeyboardTracking(false);
    box.setRange(0, 1000);
    defaults.setObject(cKey, 30.0);
    bindings.number(box, cKey);
    EXPECT_EQ(box.value(), 30.0);
    show();
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("45"));
    EXPECT_EQ(defaults.doubleForKey(cKey), 30.0);
    other->setFocus();
    EXPECT_EQ(defaults.doubleForKey(cKey), 45.0);
    box.stepUp();
    EXPECT_EQ(defaults.doubleForKey(cKey), 46.0);
}

TEST_F(BindingsTest, NumberOutOfRange_StaysStored) {
    auto& box = add<QDoubleSpinBox>();
    box.setRange(0, 1000);
    defaults.setObject(cKey, -5.0);
    bindings.number(box, cKey);
    EXPECT_EQ(box.value(), 0.0);
    EXPECT_EQ(defaults.doubleForKey(cKey), -5.0);
}

TEST_F(BindingsTest, Seconds_AreShownAsTheyAreStored) {
    auto& box = add<SecondsBox>();
    box.setSpecialValueText(QStringLiteral("automatic"));
    bindings.number(box, cKey);
    show();
    const std::pair<QVariant, QString> cases[] = {
        {0.04, QStringLiteral("0.04")},
        {100000, QStringLiteral("100000")},
        {1e-9, QStringLiteral("0.000000001")},
        {2500000.125, QStringLiteral("2500000.125")},
        {QStringLiteral("12.50"), QStringLiteral("12.5")},
        {0, QStringLiteral("automatic")},
        {-5.0, QStringLiteral("automatic")},
        {QStringLiteral("soon"), QStringLiteral("automatic")}};
    for (const auto& [value, text] : cases) {
        setOutside(value);
        EXPECT_EQ(box.text(), text);
        const std::size_t before = defaults.changes().size();
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Tab);
        EXPECT_FALSE(box.hasFocus());
        EXPECT_EQ(box.text(), text) << "after a look";
        EXPECT_EQ(defaults.changes().size(), before) << qPrintable(text);
    }
}

TEST_F(BindingsTest, TypedSeconds_AreStoredAsTyped) {
    auto& box = add<SecondsBox>();
    defaults.setObject(cKey, 30.0);
    bindings.number(box, cKey);
    show();
    for (const auto& [typed, value] : {std::pair("0.04", 0.04), std::pair("100000", 100000.0),
                                       std::pair("0.000001", 0.000001), std::pair("0", 0.0)}) {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QString::fromLatin1(typed));
        other->setFocus();
        EXPECT_EQ(stored(), QVariant(value)) << typed;
    }
}

void turnWheelOver(QWidget& control) {
    const QPointF middle(control.rect().center());
    QWheelEvent event(middle, control.mapToGlobal(middle), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &event);
}

TEST_F(BindingsTest, WheelOverAControlWithoutTheFocus_ChangesNothing) {
    auto& seconds = add<SecondsBox>();
    auto& box = add<QComboBox>();
    box.addItem(QStringLiteral("none"), 30);
    box.addItem(QStringLiteral("newer"), 29);
    defaults.setObject(cKey, 30);
    bindings.number(seconds, cKey);
    bindings.choice(box, cKey, [](int number) { return QString::number(number); });
    show();
    for (QWidget* control : std::initializer_list<QWidget*>{&seconds, &box}) {
        turnWheelOver(*control);
        EXPECT_FALSE(control->hasFocus());
        EXPECT_EQ(stored(), QVariant(30LL)) << control->metaObject()->className();
    }
    seconds.setFocus();
    turnWheelOver(seconds);
    EXPECT_EQ(defaults.doubleForKey(cKey), 29.0);
}

TEST_F(BindingsTest, ControlThatIsGone_HearsNothing) {
    auto field = std::make_unique<QLineEdit>();
    int shown = 0;
    bindings.follow(*field, {cKey}, [&shown] { ++shown; });
    setOutside(QStringLiteral("early"));
    EXPECT_EQ(shown, 2) << "at once and after the change";
    defaults.setObject(cKey, QStringLiteral("late"));
    field.reset();
    mainQueue.runDue();
    setOutside(QStringLiteral("later"));
    EXPECT_EQ(shown, 2);
}

} // namespace
} // namespace kelvo
