#include "ui/widgets/busy_row.h"

#include "ui/widgets/announcement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <utility>

namespace kelvo {
namespace {

void speak(QWidget& place, const QString& text) {
    forgetSpoken(place);
    announce(place, text);
}

} // namespace

BusyRow::BusyRow(QWidget* parent)
    : QWidget(parent), fText(new QLabel), fCancel(new QPushButton(tr("Cance&l"))) {
    fText->setObjectName(QStringLiteral("taskText"));
    fText->setTextFormat(Qt::PlainText);
    fText->setWordWrap(true);
    auto* sign = new QProgressBar;
    sign->setObjectName(QStringLiteral("taskSign"));
    sign->setRange(0, 0);
    sign->setTextVisible(false);
    sign->setMaximumSize(120, 8);
    sign->setAccessibleName(tr("Working"));
    fCancel->setObjectName(QStringLiteral("ibCancelCommand"));
    fCancel->setAutoDefault(true);
    fCancel->setAccessibleDescription(tr("Ends what the program is doing for this tab"));
    auto* row = new QHBoxLayout(this);
    row->addWidget(fText, 1);
    row->addWidget(sign);
    row->addWidget(fCancel);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setTask(RemoteTaskKind::None);
}

void BusyRow::setTask(RemoteTaskKind kind) {
    const bool busy = kind != RemoteTaskKind::None;
    const RemoteTaskKind before = std::exchange(fTask, kind);
    if (busy) {
        fText->setText(wordsFor(kind));
        if (isHidden())
            fFocusBefore = window()->focusWidget();
    } else if (fCancel->hasFocus() && fFocusBefore && fFocusBefore->isEnabled()) {
        fFocusBefore->setFocus(Qt::OtherFocusReason);
    }
    if (before != kind && !busy)
        speak(*this, endOf(before));
    setVisible(busy);
    if (before != kind && busy)
        speak(*this, fText->text());
}

QString BusyRow::wordsFor(RemoteTaskKind kind) {
    switch (kind) {
    case RemoteTaskKind::OpeningFolder:
        return tr("Opening the remote folder…");
    case RemoteTaskKind::SettingUpKey:
        return tr("Setting up the key…");
    case RemoteTaskKind::MakingKey:
        return tr("Making a new key…");
    case RemoteTaskKind::Ending:
        return tr("Being cancelled…");
    case RemoteTaskKind::None:
        break;
    }
    return {};
}

QString BusyRow::endOf(RemoteTaskKind kind) {
    return kind == RemoteTaskKind::Ending ? tr("Cancelled.") : tr("Finished.");
}

} // namespace kelvo
