#include "ui/widgets/muted_hints.h"

#include <QEvent>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace kelvo {
namespace {

constexpr double cLeastContrast = 4.5;
constexpr int cMostMuted = 40; // per cent of the background
constexpr int cStep = 5;

/// As the guidelines for accessible content of the web define it.
double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor mixed(const QColor& text, const QColor& background, int share) {
    const auto between = [share](int from, int to) { return from + (to - from) * share / 100; };
    return {between(text.red(), background.red()), between(text.green(), background.green()),
            between(text.blue(), background.blue())};
}

class Muter final : public QObject {
public:
    explicit Muter(QWidget& view) : QObject(&view), fView(view) {
        mute();
        view.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange)
            mute();
        return false;
    }

private:
    void mute() {
        QPalette palette = fView.palette();
        const QColor muted =
            mutedColor(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
        if (palette.color(QPalette::PlaceholderText) == muted)
            return;
        palette.setColor(QPalette::PlaceholderText, muted);
        fView.setPalette(palette);
    }

    QWidget& fView;
};

} // namespace

QColor mutedColor(const QColor& text, const QColor& background) {
    for (int share = cMostMuted; share > 0; share -= cStep) {
        const QColor muted = mixed(text, background, share);
        if (contrast(muted, background) >= cLeastContrast)
            return muted;
    }
    return text;
}

void muteHints(QWidget& view) {
    new Muter(view); // the view's child
}

} // namespace kelvo
