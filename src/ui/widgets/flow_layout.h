// FlowLayout: widgets side by side, going on in further rows where the width is short.
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace kelvo {

/// Widgets that want all the width they can get (an expanding size policy) share what a row has
/// left; they may be as narrow as their minimum before a row is broken. Main thread only.
class FlowLayout final : public QLayout {
public:
    /// The layout of `parent`, around the widgets that lie in it, in their order.
    explicit FlowLayout(QWidget& parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& place) override;
    void invalidate() override;

private:
    int arrange(const QRect& place, bool move) const;

    std::vector<std::unique_ptr<QLayoutItem>> fItems;
    mutable int fKnownWidth = -1;
    mutable int fKnownHeight = 0; ///< for fKnownWidth, until something changes
};

} // namespace kelvo
