// FakeDialogue: a person who answers from a list.
#pragma once

#include "ports/dialogue.h"

#include <QMap>
#include <QStringList>

#include <utility>
#include <vector>

namespace kelvo {

class FakeDialogue final : public Dialogue {
public:
    bool canAnswer() const override { return isThere; }
    void say(const QString& text) override {
        said.append(text);
        lines.append(text);
    }
    void ask(const QString& question, Answered answered) override {
        asked.append(question);
        lines.append(question);
        fAnswered = std::move(answered);
    }
    void takeBack() override {
        takenBack += fAnswered ? 1 : 0;
        fAnswered = nullptr;
    }

    bool isWaiting() const { return static_cast<bool>(fAnswered); }
    /// Answers the question that stands; with nothing: the input ends.
    void answer(const std::optional<QString>& text) { std::exchange(fAnswered, nullptr)(text); }
    void answer(const char* text) { answer(QString::fromUtf8(text)); }
    QString everything() const { return said.join(QStringLiteral("\n")); }

    bool isThere = true;
    QStringList said;  ///< so far
    QStringList asked; ///< every question so far
    QStringList lines; ///< both, in their order
    int takenBack = 0;

private:
    Answered fAnswered;
};

} // namespace kelvo
