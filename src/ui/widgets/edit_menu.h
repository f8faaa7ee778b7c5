// EditMenu: the usual editing entries, acting on whatever field has the keyboard focus.
#pragma once

#include <QMenu>

#include <vector>

namespace kelvo {

/// The field is the one in focus when an entry is chosen. Fields handle the keys themselves; the
/// entries show them and serve mouse and screen reader.
class EditMenu final : public QMenu {
    Q_OBJECT
public:
    explicit EditMenu(QWidget* parent = nullptr);

    /// Switches each entry on if the field in focus can do it now. Runs before the menu opens.
    void updateEntries();

private:
    struct Entry {
        QAction* action;
        const char* operation; ///< the name of the field's own slot
    };
    void add(const QString& name, const QString& title, QKeySequence::StandardKey key,
             const char* operation);

    std::vector<Entry> fEntries;
};

} // namespace kelvo
