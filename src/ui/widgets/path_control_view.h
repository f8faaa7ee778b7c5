// PathControlView: a folder as a row of its parts, each of which can be clicked or opened.
#pragma once

#include <QWidget>

#include <vector>

class QLabel;
class QToolButton;

namespace kelvo {

/// Shows the first part and as many of the last ones as there is room for; the others stand in a
/// menu between them. The user's home is "~". Text is plain text.
class PathControlView final : public QWidget {
    Q_OBJECT
public:
    struct Part {
        QString title; ///< one name; "/" for the root, "~" for the home
        QString path;  ///< the whole path up to and including it
    };

    explicit PathControlView(QWidget* parent = nullptr);

    /// An empty path shows `whenEmpty`.
    void setPath(const QString& path);
    const QString& path() const { return fPath; }
    void setTextWhenEmpty(const QString& text);

    const std::vector<Part>& parts() const { return fParts; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A person chose the part with this path.
    void partClicked(const QString& path);
    /// A person asked in the context menu of a part for the folder with this path.
    void openRequested(const QString& path);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void rebuild();
    void addButton();
    void placeParts();
    int separatorWidth() const;
    static void prepare(QToolButton& button, const QString& name, const QString& title);

    QString fPath;
    QString fTextWhenEmpty;
    std::vector<Part> fParts;
    std::vector<QToolButton*> fButtons; ///< one a part
    QToolButton* fHidden;               ///< the parts there is no room for
    std::vector<int> fSeparators;       ///< where each begins
    QLabel* fEmpty;
};

} // namespace kelvo
