/// The brightness of the panel's keys: a slider, and the value that counts.
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QSlider;

namespace vorlindesk {
class IFrameworkContext;
}

/// What the person sets is sent once the slider rests. Reports of the panel move the slider, and are never
/// sent back.
class BrightnessRow : public QWidget
{
    Q_OBJECT
public:
    static constexpr int Brightest = 100;
    static constexpr int Query = 255; ///< in place of a brightness: asks for it
    static constexpr int Rest = 300;  ///< ms without a move, after which the value is sent

    /// @p context outlives this widget.
    BrightnessRow(vorlindesk::IFrameworkContext &context, QWidget *parent);

    /// @p reported by the panel, as text; empty: not known.
    void showPanel(bool connected, const QString &reported);
    void retranslate();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isMoved() const;
    void refresh();
    void send();

    vorlindesk::IFrameworkContext &mContext;
    QString mReported;
    QSlider *mpSlider;
    QLabel *mpValue;
    QTimer mRest;
};
