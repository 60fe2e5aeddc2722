/// A slim bar with a line for the person, which goes away by itself.
#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QToolButton;

class NoticeBar : public QFrame
{
    Q_OBJECT
public:
    static constexpr int ShowTime = 10000; ///< ms

    explicit NoticeBar(QWidget *parent);

    void notify(const QString &text); ///< plain text, in place of what is shown
    QString text() const;             ///< empty while the bar is hidden
    void retranslate();

private:
    QLabel *mpText;
    QToolButton *mpClose;
    QTimer mTimer;
};
