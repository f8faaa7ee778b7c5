// CheckBox and RadioButton: Qt's own, with a text that wraps and a frame that is seen on dark
// grounds.
#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

namespace kelvo {

/// `text`, which may have a sign for its key, with a line end wherever `width` pixels of `font` ask
/// for one. A word is never broken.
QString wrappedText(const QString& text, const QFont& font, int width);

/// Makes the toolkit's own style draw a frame that is seen: it takes the frame from the ground of
/// `palette`, which leaves none on a dark one. Other styles and light grounds are left alone.
void showFrame(QPalette& palette, const QStyle& style);

/// Text, key and accessible name are those of `Button`; only what is drawn has more lines. Main
/// thread only.
template <typename Button, QStyle::ContentsType cContents>
class ClearBox final : public Button {
public:
    explicit ClearBox(QWidget* parent = nullptr) : Button(parent) {
        QSizePolicy wraps = this->sizePolicy();
        wraps.setHorizontalPolicy(QSizePolicy::Preferred);
        wraps.setVerticalPolicy(QSizePolicy::Minimum);
        wraps.setHeightForWidth(true);
        this->setSizePolicy(wraps);
    }
    explicit ClearBox(const QString& text, QWidget* parent = nullptr) : ClearBox(parent) {
        this->setText(text);
    }

    /// As wide as the longest word. The height is that of one line: a layout asks for the rest.
    QSize minimumSizeHint() const override {
        const QStyleOptionButton option = plainOption();
        return {sizeAround(option, wrappedText(option.text, this->font(), 1)).width(),
                this->sizeHint().height()};
    }
    int heightForWidth(int width) const override {
        const QStyleOptionButton option = plainOption();
        return width < this->sizeHint().width() ? sizeAround(option, textIn(option, width)).height()
                                                : this->sizeHint().height();
    }

protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        Button::initStyleOption(option);
        option->text = textIn(*option, this->width());
        showFrame(option->palette, *this->style());
    }

private:
    QStyleOptionButton plainOption() const {
        this->ensurePolished();
        QStyleOptionButton option;
        Button::initStyleOption(&option);
        return option;
    }
    QSize sizeAround(const QStyleOptionButton& option, const QString& text) const {
        const QSize letters =
            text.isEmpty() ? QSize(0, 0) : this->fontMetrics().size(Qt::TextShowMnemonic, text);
        return this->style()->sizeFromContents(cContents, &option, letters, this);
    }
    QString textIn(const QStyleOptionButton& option, int width) const {
        return wrappedText(option.text, this->font(),
                           width - sizeAround(option, QString()).width());
    }
};

using CheckBox = ClearBox<QCheckBox, QStyle::CT_CheckBox>;
using RadioButton = ClearBox<QRadioButton, QStyle::CT_RadioButton>;

} // namespace kelvo
