/// The spinner that covers the window while the panel works on a request.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

/// Rotating rounded lines, centred on the parent, which is disabled while it spins.
class WaitingSpinnerWidget : public QWidget
{
    Q_OBJECT
public:
    static constexpr qreal Roundness = 100.0;          ///< percent of a line's half width and half length
    static constexpr qreal MinimumTrailOpacity = 15.0; ///< percent
    static constexpr qreal TrailFadePercentage = 70.0; ///< part of the circle over which the trail fades
    static constexpr int NumberOfLines = 12;
    static constexpr int LineLength = 20;  ///< pixels
    static constexpr int LineWidth = 20;   ///< pixels
    static constexpr int InnerRadius = 40; ///< pixels
    static constexpr qreal RevolutionsPerSecond = 1.0;
    static constexpr QRgb Colour = qRgb(0, 115, 255);

    explicit WaitingSpinnerWidget(QWidget *parent);

    /// Spins for request @p requestId, for at most @p showTimeMs. Starts afresh when it spins already.
    void start(int requestId, int showTimeMs);
    /// Because the answer came: without a signal.
    void stop();
    /// Waits @p showTimeMs from now on, if it still spins.
    void updateShowTime(int showTimeMs);
    void centreOnParent();

    bool isSpinning() const { return mShowTime.isActive(); }
    int requestId() const { return mRequestId; } ///< 0 while it does not spin

    /// Opacity (0 to 1) of the line that is @p distance lines (0 to NumberOfLines - 1) behind the leading
    /// one.
    static qreal lineOpacity(int distance);

signals:
    /// The show time has run out.
    void sigRequestId(int nRequestId);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void onShowTimeout();
    void onAnimate();

    QTimer mAnimation{this};
    QTimer mShowTime{this};
    int mRequestId = 0;
    int mLeadingLine = 0;
    QPointer<QWidget> mpFocus; ///< had the keyboard before the parent was disabled
};
