/// An entry of the menu: an icon and a text in a border.
#pragma once

#include <QFrame>
#include <QIcon>

class QLabel;

/// Works like a button: by mouse, by Space and Enter, and for screen readers.
class FrameIconButton : public QFrame
{
    Q_OBJECT
public:
    /// The two labels are named @p name + "_iconlabel" and "_textlabel".
    FrameIconButton(const QString &name, const QString &iconPath, QWidget *parent);

    void setText(const QString &text); ///< also the accessible name
    void setSelected(bool selected);   ///< chooses the border; the menu decides which entry it is
    bool isSelected() const { return mSelected; }

signals:
    void clicked();
    void mouseenter();
    void mouseleave();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QIcon mIcon;
    QLabel *mpIconLabel;
    QLabel *mpTextLabel;
    bool mSelected = false;
};
