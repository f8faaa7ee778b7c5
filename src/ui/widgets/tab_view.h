// TabView: tabs that say what is about to be shown.
#pragma once

#include <QTabWidget>

namespace kelvo {

class TabView final : public QTabWidget {
    Q_OBJECT
public:
    explicit TabView(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The page `index` was chosen; the earlier one is still shown.
    void willSelect(int index);
};

} // namespace kelvo
