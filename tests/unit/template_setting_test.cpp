#include "fakes/memory_defaults.h"
#include "settings/preference_keys.h"
#include "support/partial_option.h"
#include "ui/template_setting.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Change = TemplateSetting::Change;

class TemplateSettingTest : public ::testing::Test {
protected:
    TemplateSettingTest() {
        defaults.registerDefaults({{prefRsyncCommandString1.toString(), factoryTemplate()}});
    }

    QString stored() const {
        return defaults.stringForKey(prefRsyncCommandString1).value_or(QString());
    }
    void store(const QString& text) { defaults.setObject(prefRsyncCommandString1, text); }
    static std::size_t placeOf(QStringView suffix) {
        std::size_t place = 0;
        while (cMovieKinds.at(place).suffix != suffix)
            ++place;
        return place;
    }

    MemoryDefaults defaults;
    TemplateSetting setting{defaults};
};

const QString cOwn = QStringLiteral("mine %@1 %@2");

TEST_F(TemplateSettingTest, Kind_ComesIntoTheTemplateAndLeavesIt) {
    const MovieKinds factory = *setting.kinds();
    setting.setKind(placeOf(u"mxf"), true);
    setting.setKind(placeOf(u"avi"), false);
    EXPECT_TRUE(stored().contains(u"-f '+ *.[mM][xX][fF]' -f '- *' \"%@1\" \"%@2\""));
    EXPECT_FALSE(stored().contains(u"[aA][vV][iI]"));
    EXPECT_EQ(setting.kinds(), MovieKinds(factory).set(placeOf(u"mxf")).reset(placeOf(u"avi")));
}

TEST_F(TemplateSettingTest, FactoryKindsAgain_LeaveNothingStored) {
    setting.setKind(placeOf(u"mkv"), false);
    EXPECT_TRUE(defaults.changes().back().second.isValid());
    setting.setKind(placeOf(u"mkv"), true);
    EXPECT_EQ(stored(), factoryTemplate());
    EXPECT_FALSE(defaults.changes().back().second.isValid()) << "the default shows through";
}

TEST_F(TemplateSettingTest, TemplateOfAnEarlierVersion_IsTakenOver) {
    const auto earlier = [](const QString& today) {
        return QString(today).replace(cPartialOption.toString(), cPartialWord.toString());
    };
    store(earlier(factoryTemplate()));
    setting.takeOver();
    EXPECT_EQ(stored(), factoryTemplate());
    EXPECT_FALSE(defaults.changes().back().second.isValid()) << "the default shows through";
    const QString two = templateWithKinds(MovieKinds(3));
    store(earlier(two));
    setting.takeOver();
    EXPECT_EQ(stored(), two);
    store(cOwn);
    setting.takeOver();
    EXPECT_EQ(stored(), cOwn);
}

TEST_F(TemplateSettingTest, OwnTemplate_IsLeftAlone) {
    store(cOwn);
    EXPECT_EQ(setting.kinds(), std::nullopt);
    setting.setKind(placeOf(u"mkv"), false);
    EXPECT_EQ(stored(), cOwn);
}

TEST_F(TemplateSettingTest, OwnTemplate_ComesBackAfterTheFactorys) {
    EXPECT_EQ(setting.nextChange(), Change::None);
    setting.change();
    EXPECT_TRUE(defaults.changes().empty());
    store(cOwn);
    EXPECT_EQ(setting.nextChange(), Change::ToFactory);
    setting.change();
    EXPECT_EQ(stored(), factoryTemplate());
    EXPECT_EQ(setting.nextChange(), Change::ToOwn);
    setting.change();
    EXPECT_EQ(stored(), cOwn);
    EXPECT_EQ(setting.nextChange(), Change::ToFactory);
}

TEST_F(TemplateSettingTest, OtherTicks_GoBackToTheFactorysToo) {
    setting.setKind(placeOf(u"wmv"), true);
    const QString ticked = stored();
    EXPECT_EQ(setting.nextChange(), Change::ToFactory);
    setting.change();
    EXPECT_EQ(stored(), factoryTemplate());
    setting.change();
    EXPECT_EQ(stored(), ticked);
}

TEST_F(TemplateSettingTest, WithoutADefault_TheFactorysTextIsStored) {
    MemoryDefaults bare;
    TemplateSetting alone(bare);
    EXPECT_EQ(alone.kinds(), std::nullopt);
    alone.change();
    EXPECT_EQ(bare.stringForKey(prefRsyncCommandString1), factoryTemplate());
    EXPECT_EQ(alone.nextChange(), Change::None) << "there was none to go back to";
}

} // namespace
} // namespace kelvo
