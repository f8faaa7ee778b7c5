// TrayItem: an icon with a menu that is not drawn by us but by the desktop's panel.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

namespace kelvo {

struct TrayPicture {
    int side = 0;    ///< pixels
    QByteArray argb; ///< row by row from the top; four bytes a pixel: alpha, red, green, blue

    bool operator==(const TrayPicture&) const = default;
};

struct TrayLook {
    bool needsAttention = false;
    std::vector<TrayPicture> pictures = {}; ///< one picture in several sizes
    QString tip = {};                       ///< plain; beside the program's name

    bool operator==(const TrayLook&) const = default;
};

struct TrayEntry {
    QString title = {}; ///< plain but for "&" before the mnemonic and "&&" for itself
    bool isSeparator = false;
    bool isEnabled = true;
    bool isVisible = true;

    bool operator==(const TrayEntry&) const = default;
};

/// What a person can do to the item; an empty one does nothing.
struct TrayChoices {
    std::function<void()> activate = {};
    std::function<void(std::size_t entry)> choose = {};
    /// For a panel that draws no menus: show it at this place of the screen, in pixels.
    std::function<void(int x, int y)> openMenu = {};
    /// The panel has opened the menu, or closed it. Not every panel tells.
    std::function<void(bool shown)> menuShown = {};
};

/// Main thread only. Hidden at first.
class TrayItem {
public:
    virtual ~TrayItem() = default;

    /// Calls each choice once, on the main thread, from its event loop. An entry that is disabled,
    /// hidden or a separator is not chosen, nor is anything of an item that is hidden.
    virtual void setChoices(TrayChoices choices) = 0;

    /// The menu's entries from now on, kept while hidden.
    virtual void setEntries(std::vector<TrayEntry> entries) = 0;

    /// Shows the item, or changes how it looks. Blocks for one answer of the bus when it was
    /// hidden. A panel that starts anew gets the item again.
    virtual void show(const TrayLook& look) = 0;

    /// Takes the item out of the panel. Hidden already: no change.
    virtual void hide() = 0;
};

} // namespace kelvo
