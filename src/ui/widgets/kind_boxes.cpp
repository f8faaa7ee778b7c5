#include "ui/widgets/kind_boxes.h"

#include "ui/widgets/clear_box.h"
#include "ui/widgets/flow_layout.h"

#include <QEvent>
#include <QGuiApplication>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cGap = 12;
constexpr char16_t cLeftToRight = 0x200e;

/// The dot stays before the letters in a window that is written from right to left.
QString asWritten(const QString& suffix) {
    return QGuiApplication::isRightToLeft() ? cLeftToRight + suffix : suffix;
}

} // namespace

KindBoxes::KindBoxes(QWidget* parent) : QWidget(parent) {
    for (std::size_t place = 0; place < fBoxes.size(); ++place) {
        const QString suffix = cMovieKinds[place].suffix.toString();
        fBoxes[place] = new CheckBox(asWritten(u'.' + suffix), this);
        fBoxes[place]->setObjectName(u"kind_" + suffix);
        connect(fBoxes[place], &QCheckBox::clicked, this,
                [this, place](bool taken) { Q_EMIT kindTicked(place, taken); });
    }
    (new FlowLayout(*this))->setSpacing(cGap);
    alignBoxes();
}

void KindBoxes::setKinds(std::optional<MovieKinds> kinds, bool overSsh) {
    for (std::size_t place = 0; place < fBoxes.size(); ++place) {
        const bool comesAnyway = overSsh && cMovieKinds[place].comesAnyway;
        fBoxes[place]->setEnabled(kinds && !comesAnyway);
        fBoxes[place]->setChecked(kinds && (comesAnyway || kinds->test(place)));
    }
}

void KindBoxes::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        alignBoxes();
}

void KindBoxes::alignBoxes() {
    int widest = 0;
    for (const QCheckBox* box : fBoxes)
        widest = std::max(widest, box->sizeHint().width());
    for (QCheckBox* box : fBoxes)
        box->setMinimumWidth(widest);
}

} // namespace kelvo
