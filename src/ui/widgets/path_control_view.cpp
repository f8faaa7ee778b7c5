#include "ui/widgets/path_control_view.h"

#include "ports/path_control.h"
#include "support/file_url.h"
#include "ui/widgets/elided_label.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QResizeEvent>
#include <QToolButton>
#include <QUrl>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cGap = 2;

std::vector<PathControlView::Part> partsOf(const QString& path) {
    if (!path.isEmpty() && !path.startsWith(u'/'))
        return {{path, path}};
    std::vector<PathControlView::Part> parts;
    for (const PathControl::Item& item : pathItemsOf(fileUrl(path)))
        parts.push_back({item.title, QUrl(item.url).toLocalFile()});
    return parts;
}

/// A name on a button: "&" is a letter, not a mnemonic.
QString literal(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

} // namespace

PathControlView::PathControlView(QWidget* parent)
    : QWidget(parent), fHidden(makeButton(QStringLiteral("hiddenParts"), QStringLiteral("…"))),
      fEmpty(new QLabel(this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    fHidden->setPopupMode(QToolButton::InstantPopup);
    fHidden->setAccessibleName(tr("Folders above"));
    fHidden->setMenu(new QMenu(fHidden));
    fEmpty->setTextFormat(Qt::PlainText);
    fEmpty->setForegroundRole(QPalette::PlaceholderText);
    rebuild();
}

void PathControlView::setPath(const QString& path) {
    if (path == fPath)
        return;
    fPath = path;
    rebuild();
}

void PathControlView::setTextWhenEmpty(const QString& text) {
    fTextWhenEmpty = text;
    rebuild();
}

QSize PathControlView::sizeHint() const {
    int width = cGap;
    for (const QToolButton* button : fButtons)
        width += button->sizeHint().width() + cGap;
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
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        rebuild();
}

QToolButton* PathControlView::makeButton(const QString& name, const QString& title) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setText(literal(title));
    return button;
}

void PathControlView::rebuild() {
    qDeleteAll(fButtons);
    fButtons.clear();
    fParts = partsOf(fPath);
    for (std::size_t i = 0; i < fParts.size(); ++i) {
        QToolButton* button =
            makeButton(QStringLiteral("part%1").arg(static_cast<int>(i)), fParts[i].title);
        button->setAccessibleName(fParts[i].title);
        button->setAccessibleDescription(fParts[i].path);
        button->setToolTip(plainToolTip(fParts[i].path));
        connect(button, &QToolButton::clicked, this,
                [this, path = fParts[i].path] { Q_EMIT partClicked(path); });
        auto* open = new QAction(tr("Open %1").arg(literal(fParts[i].title)), button);
        connect(open, &QAction::triggered, this,
                [this, path = fParts[i].path] { Q_EMIT openRequested(path); });
        button->addAction(open);
        button->setContextMenuPolicy(Qt::ActionsContextMenu);
        setTabOrder(i == 0 ? fHidden : fButtons.back(), button);
        fButtons.push_back(button);
    }
    fEmpty->setText(fTextWhenEmpty);
    fEmpty->setVisible(fParts.empty());
    updateGeometry();
    placeParts();
}

void PathControlView::placeParts() {
    const int height = this->height();
    fEmpty->setGeometry(0, 0, width(), height);
    for (std::size_t i = 0; i < fButtons.size(); ++i)
        fButtons[i]->setText(literal(fParts[i].title));
    // From the last part backwards, as many as fit; the last one is always there, cut if need be.
    const int hiddenWidth = fHidden->sizeHint().width();
    std::size_t first = fButtons.size();
    int used = 0;
    while (first > 0) {
        const int wanted = fButtons[first - 1]->sizeHint().width() + cGap;
        const int reserved = first > 1 ? hiddenWidth + cGap : 0;
        if (first < fButtons.size() && used + wanted + reserved > width())
            break;
        used += wanted;
        --first;
    }

    fHidden->menu()->clear();
    for (std::size_t i = 0; i < first; ++i)
        fHidden->menu()->addAction(literal(fParts[i].title), this,
                                   [this, path = fParts[i].path] { Q_EMIT partClicked(path); });
    fHidden->setVisible(first > 0);
    int x = 0;
    if (first > 0) {
        fHidden->setGeometry(0, 0, hiddenWidth, height);
        x = hiddenWidth + cGap;
    }
    for (std::size_t i = 0; i < fButtons.size(); ++i) {
        QToolButton* button = fButtons[i];
        button->setVisible(i >= first);
        if (i < first)
            continue;
        const int room = width() - x;
        const int wanted = button->sizeHint().width();
        const int frame = wanted - button->fontMetrics().horizontalAdvance(button->text());
        if (wanted > room)
            button->setText(literal(
                button->fontMetrics().elidedText(fParts[i].title, Qt::ElideMiddle, room - frame)));
        button->setGeometry(x, 0, std::min(wanted, room), height);
        x += std::min(wanted, room) + cGap;
    }
}

} // namespace kelvo
