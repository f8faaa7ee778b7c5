#include "ui/widgets/path_control_view.h"

#include "ports/path_control.h"
#include "support/file_url.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/muted_hints.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QResizeEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <numeric>

namespace kelvo {
namespace {

std::vector<PathControlView::Part> partsOf(const QString& path) {
    if (!path.isEmpty() && !path.startsWith(u'/'))
        return {{path, path}};
    const QString home = QDir::homePath();
    const bool atHome = path == home || path.startsWith(home + u'/');
    std::vector<PathControlView::Part> parts;
    if (atHome)
        parts.push_back({QStringLiteral("~"), home});
    for (const PathControl::Item& item : pathItemsOf(fileUrl(path))) {
        const QString whole = QUrl(item.url).toLocalFile();
        if (!atHome || whole.size() > home.size())
            parts.push_back({item.title, whole});
    }
    return parts;
}

/// Keeps its context menu to itself: the sign for it would stand in the path.
class PartButton final : public QToolButton {
public:
    using QToolButton::QToolButton;

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override {
        QToolButton::initStyleOption(option);
        option->features &= ~QStyleOptionToolButton::HasMenu;
    }
};

/// A name on a button: "&" is a letter, not a mnemonic.
QString literal(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

} // namespace

PathControlView::PathControlView(QWidget* parent)
    : QWidget(parent), fHidden(new QToolButton(this)), fEmpty(new QLabel(this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    prepare(*fHidden, QStringLiteral("hiddenParts"), QStringLiteral("…"));
    fHidden->setPopupMode(QToolButton::InstantPopup);
    fHidden->setAccessibleName(tr("Folders above"));
    fHidden->setMenu(new QMenu(fHidden));
    fEmpty->setTextFormat(Qt::PlainText);
    fEmpty->setForegroundRole(QPalette::PlaceholderText);
    muteHints(*this);
    rebuild();
}

void PathControlView::setPath(const QString& path) {
    if (path == fPath)
        return;
    fPath = path;
    setToolTip(plainToolTip(path));
    rebuild();
}

void PathControlView::setTextWhenEmpty(const QString& text) {
    fTextWhenEmpty = text;
    rebuild();
}

QSize PathControlView::sizeHint() const {
    int width = 0;
    for (const QToolButton* button : fButtons)
        width += button->sizeHint().width() + separatorWidth();
    return {fParts.empty() ? fEmpty->sizeHint().width() : width,
            std::max(fHidden->sizeHint().height(), fEmpty->sizeHint().height())};
}

QSize PathControlView::minimumSizeHint() const {
    return {fHidden->sizeHint().width() * 4, sizeHint().height()};
}

void PathControlView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeParts();
}

void PathControlView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LayoutDirectionChange)
        rebuild();
}

void PathControlView::prepare(QToolButton& button, const QString& name, const QString& title) {
    button.setObjectName(name);
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::StrongFocus);
    button.setText(literal(title));
}

void PathControlView::rebuild() {
    fParts = partsOf(fPath);
    if (fButtons.size() > fParts.size()) {
        QWidget* const last = fParts.empty() ? nullptr : fButtons[fParts.size() - 1];
        for (std::size_t i = fParts.size(); i < fButtons.size(); ++i) {
            if (fButtons[i]->hasFocus() && last)
                last->setFocus(Qt::OtherFocusReason);
            delete fButtons[i];
        }
        fButtons.resize(fParts.size());
    }
    while (fButtons.size() < fParts.size())
        addButton();
    for (std::size_t i = 0; i < fParts.size(); ++i) {
        QToolButton& button = *fButtons[i];
        button.setText(literal(fParts[i].title));
        button.setAccessibleName(fParts[i].title);
        button.setAccessibleDescription(fParts[i].path);
        button.setToolTip(plainToolTip(fParts[i].path));
        button.actions().constFirst()->setText(tr("Open %1").arg(literal(fParts[i].title)));
    }
    fEmpty->setText(fTextWhenEmpty);
    fEmpty->setVisible(fParts.empty());
    updateGeometry();
    placeParts();
}

void PathControlView::addButton() {
    const std::size_t place = fButtons.size();
    auto* button = new PartButton(this);
    prepare(*button, QStringLiteral("part%1").arg(static_cast<int>(place)), {});
    connect(button, &QToolButton::clicked, this,
            [this, place] { Q_EMIT partClicked(QString(fParts[place].path)); });
    auto* open = new QAction(button);
    connect(open, &QAction::triggered, this,
            [this, place] { Q_EMIT openRequested(QString(fParts[place].path)); });
    button->addAction(open);
    button->setContextMenuPolicy(Qt::ActionsContextMenu);
    setTabOrder(place < 2 ? fHidden : fButtons.back(), button);
    if (place == 0)
        setTabOrder(button, fHidden); // The menu stands behind the first part.
    fButtons.push_back(button);
}

void PathControlView::placeParts() {
    const int gap = separatorWidth();
    fEmpty->setGeometry(0, 0, width(), height());
    fSeparators.clear();
    fHidden->menu()->clear();
    fHidden->hide();
    if (fParts.empty())
        return;
    std::vector<int> widths;
    for (std::size_t i = 0; i < fButtons.size(); ++i) {
        fButtons[i]->setText(literal(fParts[i].title));
        widths.push_back(fButtons[i]->sizeHint().width());
    }
    // The first part, then from the last one backwards as many as fit; the last one is always
    // there, cut if need be.
    const std::size_t last = fParts.size() - 1;
    const int whole = std::accumulate(widths.begin(), widths.end(), static_cast<int>(last) * gap);
    std::size_t first = 0;
    if (whole > width() && last > 0) {
        const int hidden = fHidden->sizeHint().width();
        int used = widths[0] + gap + hidden + gap + widths[last];
        for (first = last; first > 1 && used + gap + widths[first - 1] <= width(); --first)
            used += gap + widths[first - 1];
    }

    int x = 0;
    const auto place = [&](QToolButton& button, int wanted) {
        const int given = std::max(std::min(wanted, width() - x), 0);
        button.setGeometry(
            QStyle::visualRect(layoutDirection(), rect(), QRect(x, 0, given, height())));
        button.show();
        x += given;
    };
    const auto separate = [&] {
        fSeparators.push_back(x);
        x += gap;
    };
    for (std::size_t i = 0; i < fParts.size(); ++i) {
        const bool hides = i > 0 && i < first;
        fButtons[i]->setVisible(!hides);
        if (hides) {
            fHidden->menu()->addAction(literal(fParts[i].title), this,
                                       [this, path = fParts[i].path] { Q_EMIT partClicked(path); });
            continue;
        }
        if (i > 0 && i == first && first > 1) {
            place(*fHidden, fHidden->sizeHint().width());
            separate();
        }
        const int frame = widths[i] - fontMetrics().horizontalAdvance(fParts[i].title);
        if (widths[i] > width() - x)
            fButtons[i]->setText(literal(
                fontMetrics().elidedText(fParts[i].title, Qt::ElideMiddle, width() - x - frame)));
        place(*fButtons[i], widths[i]);
        if (i < last && fParts[i].title != u'/')
            separate();
    }
    update();
}

int PathControlView::separatorWidth() const {
    return fontMetrics().horizontalAdvance(u'/') + 2;
}

void PathControlView::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    for (const int x : fSeparators)
        style()->drawItemText(
            &painter,
            QStyle::visualRect(layoutDirection(), rect(), QRect(x, 0, separatorWidth(), height())),
            Qt::AlignCenter, palette(), isEnabled(), QStringLiteral("/"), QPalette::WindowText);
}

} // namespace kelvo
