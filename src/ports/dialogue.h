// Dialogue: a person at the terminal in which the program was started.
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace kelvo {

/// Main thread only.
class Dialogue {
public:
    /// Gets what was typed, without its line end; nothing when the input has ended.
    using Answered = std::function<void(const std::optional<QString>&)>;

    virtual ~Dialogue() = default;

    /// Whether there is somebody who sees questions and can answer. The same at each call.
    virtual bool canAnswer() const = 0;

    /// Shows `text` and a line end, whoever reads it. Control characters are spelled out.
    virtual void say(const QString& text) = 0;

    /// Shows `question` and returns at once; `answered` is called once, later, unless the question
    /// is taken back before. One question at a time, and only where somebody can answer.
    virtual void ask(const QString& question, Answered answered) = 0;

    /// The question that stands, if one does, needs no answer any more; its line is ended.
    virtual void takeBack() = 0;
};

} // namespace kelvo
