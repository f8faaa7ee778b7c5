#include "fakes/view_controller_world.h"
#include "remote/kept_pair.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cPrivateKey = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync");
const QString cPublicKey = QString(cPrivateKey + u".pub");

class KeyReplacementTest : public ::testing::Test, public ViewControllerWorld {
protected:
    KeyReplacementTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
        shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
            put(cPrivateKey, "new private");
            put(cPublicKey, "new public");
            return QString();
        });
        load();
        keptPath =
            cPrivateKey + u'-' + now.toLocalTime().toString(QStringLiteral("yyyy-MM-ddTHH-mm-ss"));
    }

    void put(const QString& path, const QByteArray& content) {
        files.existing.insert(path);
        files.written[path] = content;
    }
    void putPair() {
        put(cPrivateKey, "old private");
        put(cPublicKey, "old public");
    }
    void settle() {
        for (int turn = 0; turn < 4; ++turn) {
            bgQueue.runAll();
            mainQueue.advance(0.2);
        }
    }
    /// The answer to the newest question.
    void answer(ModalResponse response) {
        ASSERT_TRUE(presenter.answer(presenter.last, response));
        settle();
    }
    QByteArray content(const QString& path) const { return files.written.value(path); }
    QString told() const {
        return presenter.alerts.empty() ? QString() : presenter.alerts.back().messageText;
    }

    QString keptPath;
};

TEST_F(KeyReplacementTest, WithoutAKey_ThereIsNothingToAsk) {
    controller.ibMakeNewKey(nullptr);
    settle();
    EXPECT_TRUE(presenter.alerts.empty());
    EXPECT_EQ(content(cPrivateKey), "new private");
}

TEST_F(KeyReplacementTest, Question_SaysWhatBreaksAndNothingHappensBeforeTheAnswer) {
    putPair();
    for (const auto action : {&ViewController::ibMakeNewKey, &ViewController::ibMakeNewKeyOLD}) {
        (controller.*action)(nullptr);
        (controller.*action)(nullptr);
        settle();
        ASSERT_EQ(presenter.open.size(), 1U);
        const Alert& question = presenter.alerts.back();
        EXPECT_EQ(question.messageText, u"Make a new key?");
        EXPECT_EQ(question.informativeText,
                  u"The Mac will not let Kelvo Mirror in until the new key is installed there with "
                  u"Set Up Key…, which asks for the password on the Mac. Until then no pass brings "
                  u"movies.\n\nThe key of today is kept beside the new one, under a name with the "
                  u"date, and is not used any more.");
        EXPECT_EQ(question.defaultButton, 1);
        EXPECT_EQ(question.buttons,
                  (QStringList{QStringLiteral("Make a New Key"), QStringLiteral("Keep the Key")}));
        for (const ModalResponse other : {cAlertSecondButtonReturn, cModalResponseStop}) {
            answer(other);
            EXPECT_EQ(content(cPrivateKey), "old private");
            EXPECT_TRUE(files.removed.isEmpty());
            EXPECT_TRUE(shell.commands().isEmpty());
            (controller.*action)(nullptr);
        }
        answer(cAlertSecondButtonReturn);
    }
}

TEST_F(KeyReplacementTest, Agreed_KeepsBothHalvesUnderTheDate) {
    putPair();
    controller.ibMakeNewKey(nullptr);
    answer(cAlertFirstButtonReturn);
    EXPECT_EQ(content(cPrivateKey), "new private");
    EXPECT_EQ(content(cPublicKey), "new public");
    EXPECT_EQ(content(keptPath), "old private");
    EXPECT_EQ(content(QString(keptPath + u".pub")), "old public");
    EXPECT_EQ(presenter.alerts.size(), 1U) << "the question alone";
}

TEST_F(KeyReplacementTest, PairKeptEarlier_IsNeverOverwritten) {
    putPair();
    put(keptPath, "older");
    put(QString(keptPath + u"-2.pub"), "older still");
    controller.ibMakeNewKey(nullptr);
    answer(cAlertFirstButtonReturn);
    EXPECT_EQ(content(keptPath), "older");
    EXPECT_EQ(content(QString(keptPath + u"-2.pub")), "older still");
    EXPECT_EQ(content(QString(keptPath + u"-3")), "old private");
    EXPECT_EQ(content(QString(keptPath + u"-3.pub")), "old public");
}

TEST_F(KeyReplacementTest, WhatCannotBeKept_IsNotReplaced) {
    putPair();
    files.guarded = keptPath + u".pub";
    for (const auto action : {&ViewController::ibMakeNewKey, &ViewController::ibMakeNewKeyOLD}) {
        (controller.*action)(nullptr);
        answer(cAlertFirstButtonReturn);
        EXPECT_EQ(told(), u"The key was not replaced");
        EXPECT_EQ(presenter.alerts.back().informativeText,
                  QString(u"The key of today could not be kept, so nothing was changed.\n\n" +
                          keptPath + u".pub: Permission denied"));
        EXPECT_EQ(content(cPrivateKey), "old private");
        EXPECT_EQ(content(cPublicKey), "old public");
        EXPECT_FALSE(files.existing.contains(keptPath)) << "half a pair is not left beside it";
        EXPECT_TRUE(shell.commands().isEmpty());
    }
}

TEST_F(KeyReplacementTest, NoNewKey_PutsTheOldOneBack) {
    shell.answerTo(QStringLiteral("ssh-keygen"), QStringLiteral("not found"), 127);
    putPair();
    controller.ibMakeNewKey(nullptr);
    answer(cAlertFirstButtonReturn);
    EXPECT_EQ(files.existing, (QSet<QString>{cPrivateKey, cPublicKey}));
    EXPECT_EQ(content(cPrivateKey), "old private");
    EXPECT_EQ(told(), u"No new key was made");
    EXPECT_EQ(presenter.alerts.back().informativeText,
              u"The key that was there before is in its place again.");
}

TEST_F(KeyReplacementTest, OldKeyThatCannotBePutBack_IsSaidWithItsPlace) {
    shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
        files.guarded = cPrivateKey;
        return QString();
    });
    putPair();
    controller.ibMakeNewKey(nullptr);
    answer(cAlertFirstButtonReturn);
    EXPECT_EQ(told(), u"No new key was made");
    EXPECT_EQ(presenter.alerts.back().informativeText,
              QString(u"The key that was there before could not be put back. It lies at " +
                      keptPath + u".\n\n" + cPrivateKey + u": Permission denied"));
    EXPECT_EQ(content(keptPath), "old private");
}

TEST_F(KeyReplacementTest, Cancel_PutsTheOldKeyBack) {
    shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
        controller.ibCancelCommand(nullptr);
        return QString();
    });
    putPair();
    controller.ibMakeNewKey(nullptr);
    answer(cAlertFirstButtonReturn);
    EXPECT_EQ(content(cPrivateKey), "old private");
    EXPECT_EQ(content(cPublicKey), "old public");
    EXPECT_EQ(view.tasks, (std::vector{RemoteTaskKind::MakingKey, RemoteTaskKind::Ending,
                                       RemoteTaskKind::None}));
}

TEST_F(KeyReplacementTest, OlderWayWithoutANewKey_PutsTheOldOneBack) {
    putPair();
    controller.ibMakeNewKeyOLD(nullptr);
    answer(cAlertFirstButtonReturn);
    EXPECT_FALSE(files.existing.contains(cPrivateKey));
    ASSERT_EQ(terminal.windows.size(), 1U);
    terminal.windows.front().ended(TerminalOutcome::Ended);
    settle();
    EXPECT_EQ(content(cPrivateKey), "old private");
}

TEST_F(KeyReplacementTest, SetUp_AsksOnlyWhenAPrivateHalfIsAlone) {
    putPair();
    controller.ibSetUpKey(nullptr);
    settle();
    EXPECT_TRUE(presenter.alerts.empty());
    EXPECT_EQ(content(cPrivateKey), "old private");
    files.existing.remove(cPublicKey);
    controller.ibSetUpKey(nullptr);
    settle();
    ASSERT_EQ(presenter.open.size(), 1U);
    EXPECT_EQ(content(cPrivateKey), "old private");
    answer(cAlertFirstButtonReturn);
    EXPECT_EQ(content(cPrivateKey), "new private");
    EXPECT_EQ(content(keptPath), "old private");
}

TEST_F(KeyReplacementTest, LonePublicHalf_IsKeptWithoutAQuestion) {
    put(cPublicKey, "old public");
    controller.ibSetUpKey(nullptr);
    settle();
    EXPECT_TRUE(presenter.alerts.empty());
    EXPECT_EQ(content(QString(keptPath + u".pub")), "old public");
    EXPECT_EQ(content(cPublicKey), "new public");
}

} // namespace
} // namespace kelvo
