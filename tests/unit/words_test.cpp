#include "support/pass_record.h"
#include "ui/pass_words.h"
#include "ui/words.h"

#include <QTranslator>

#include <gtest/gtest.h>

#include <map>

namespace kelvo {
namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

using Texts = std::map<std::string, const char*>;

/// A catalogue of a few texts, loaded while it lives.
class Catalogue final : public QTranslator {
public:
    explicit Catalogue(Texts texts) : fTexts(std::move(texts)) {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override {
        const auto found = fTexts.find(source);
        return found == fTexts.end() ? QString() : text(found->second);
    }

private:
    const Texts fTexts;
};

TEST(WordsTest, Counted_SaysOneWithoutACatalogue) {
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 1), text("1 file"));
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 0), text("0 files"));
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 12345), text("12345 files"));
}

TEST(WordsTest, Counted_LeavesTheFormsToTheCatalogue) {
    const Catalogue german(Texts{{"%Ln files", "%Ln Dateien"}});
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 1), text("1 Dateien"));
}

TEST(WordsTest, Listed_JoinsWhatHoldsPlacesOfItsOwn) {
    EXPECT_EQ(Words::listed({text("100%2"), text("%1"), text("c")}), text("100%2, %1, c"));
    EXPECT_EQ(Words::listed({}), QString());
}

TEST(WordsTest, Shown_ComesBackAsItIsWithoutACatalogue) {
    for (const char* english :
         {"", "Resting a bit ...", "Trying to rsync with option = --update...", "any text %1",
          "something went wrong - waiting to retry again... [3]",
          "Please make sure remote host is on this network\nor\nPlease check "
          "username...\n\ncheckremotehost\n",
          "Settings cannot be saved to /a: b/c: No space left on device"})
        EXPECT_EQ(Words::shown(text(english)), text(english));
}

TEST(WordsTest, Shown_FindsTextsAndPatternsWithTheirValues) {
    const Catalogue german(Texts{{"Resting a bit ...", "Kurze Pause ..."},
                                 {"No space left on device", "Voll"},
                                 {"Settings cannot be saved to %1: %2", "%2 (%1)"},
                                 {"Trying to rsync with option = %1...", "Option %1..."}});
    EXPECT_EQ(Words::shown(text("Resting a bit ...")), text("Kurze Pause ..."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = --update...")),
              text("Option --update..."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = %1...")), text("Option %1..."));
    EXPECT_EQ(Words::shown(text("Settings cannot be saved to /a%2: No space left on device")),
              text("Voll (/a%2)"));
    EXPECT_EQ(Words::shown(text("Resting a bit ....")), text("Resting a bit ...."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = .")),
              text("Trying to rsync with option = ."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = ..")),
              text("Trying to rsync with option = .."))
        << "begin and end share no sign";
}

TEST(WordsTest, EveryTrouble_HasASentenceWithItsBeginning) {
    for (int i = 0; i <= static_cast<int>(cLastPassCause); ++i) {
        const auto cause = static_cast<PassCause>(i);
        QString since = sentenceFor(cause, text("X"));
        EXPECT_EQ(since.count(u" since X"), isTrouble(cause) ? 1 : 0) << i;
        if (isTrouble(cause)) {
            EXPECT_EQ(since.remove(text(" since X")), sentenceFor(cause)) << i;
        }
    }
}

TEST(WordsTest, WordsForScripts_StayEnglishWhateverIsLoaded) {
    const Catalogue german(Texts{{"All is well.", "Alles in Ordnung."}});
    EXPECT_EQ(sentenceFor(PassCause::Well), text("Alles in Ordnung."));
    EXPECT_EQ(wordsFor(PassCause::Well).sentence, QLatin1StringView("All is well."));
}

} // namespace
} // namespace kelvo
