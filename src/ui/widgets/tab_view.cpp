#include "ui/widgets/tab_view.h"

#include <QTabBar>

namespace kelvo {

TabView::TabView(QWidget* parent) : QTabWidget(parent) {
    auto* bar = new QTabBar(this);
    bar->setObjectName(QStringLiteral("qt_tabwidget_tabbar")); // as Qt calls its own
    // Before the tab widget connects itself and turns the page.
    connect(bar, &QTabBar::currentChanged, this, [this](int index) { Q_EMIT willSelect(index); });
    setTabBar(bar);
}

} // namespace kelvo
