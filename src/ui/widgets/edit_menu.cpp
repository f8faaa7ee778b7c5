#include "ui/widgets/edit_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

#include <string_view>

namespace kelvo {
namespace {

/// What a field can do at the moment.
struct Abilities {
    bool undo = false;
    bool redo = false;
    bool change = false; ///< the text is the person's to change
    bool selection = false;
    bool readable = true; ///< what is selected may be copied
    bool selectAll = false;
};

Abilities abilitiesOf(const QWidget* focus) {
    if (const auto* line = qobject_cast<const QLineEdit*>(focus)) {
        const bool change = !line->isReadOnly() && line->isEnabled();
        return {change && line->isUndoAvailable(),
                change && line->isRedoAvailable(),
                change,
                line->hasSelectedText(),
                line->echoMode() == QLineEdit::Normal,
                !line->text().isEmpty()};
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(focus)) {
        const bool change = !text->isReadOnly() && text->isEnabled();
        return {change && text->document()->isUndoAvailable(),
                change && text->document()->isRedoAvailable(),
                change,
                text->textCursor().hasSelection(),
                true,
                !text->document()->isEmpty()};
    }
    if (const auto* label = qobject_cast<const QLabel*>(focus))
        return {.selection = label->hasSelectedText(), .selectAll = !label->text().isEmpty()};
    return {};
}

bool can(const Abilities& field, std::string_view operation) {
    if (operation == "undo")
        return field.undo;
    if (operation == "redo")
        return field.redo;
    if (operation == "cut")
        return field.change && field.selection && field.readable;
    if (operation == "copy")
        return field.selection && field.readable;
    if (operation == "paste")
        return field.change && !QGuiApplication::clipboard()->text().isEmpty();
    return field.selectAll;
}

void perform(const char* operation) {
    QWidget* focus = QApplication::focusWidget();
    if (auto* label = qobject_cast<QLabel*>(focus)) {
        if (std::string_view(operation) == "copy")
            QGuiApplication::clipboard()->setText(label->selectedText());
        else
            label->setSelection(0, static_cast<int>(label->text().size()));
    } else if (focus) {
        QMetaObject::invokeMethod(focus, operation);
    }
}

} // namespace

EditMenu::EditMenu(QWidget* parent) : QMenu(tr("&Edit"), parent) {
    setObjectName(QStringLiteral("editMenu"));
    add(QStringLiteral("undo"), tr("&Undo"), QKeySequence::Undo, "undo");
    add(QStringLiteral("redo"), tr("&Redo"), QKeySequence::Redo, "redo");
    addSeparator();
    add(QStringLiteral("cut"), tr("Cu&t"), QKeySequence::Cut, "cut");
    add(QStringLiteral("copy"), tr("&Copy"), QKeySequence::Copy, "copy");
    add(QStringLiteral("paste"), tr("&Paste"), QKeySequence::Paste, "paste");
    addSeparator();
    add(QStringLiteral("selectAll"), tr("Select &All"), QKeySequence::SelectAll, "selectAll");
    connect(this, &QMenu::aboutToShow, this, &EditMenu::updateEntries);
}

void EditMenu::add(const QString& name, const QString& title, QKeySequence::StandardKey key,
                   const char* operation) {
    QAction* action = addAction(title);
    action->setObjectName(name);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [operation] {
        if (can(abilitiesOf(QApplication::focusWidget()), operation))
            perform(operation);
    });
    fEntries.push_back({action, operation});
}

void EditMenu::updateEntries() {
    const Abilities field = abilitiesOf(QApplication::focusWidget());
    for (const Entry& entry : fEntries)
        entry.action->setEnabled(can(field, entry.operation));
}

} // namespace kelvo
