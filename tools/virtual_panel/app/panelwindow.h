/// The virtual panel's window: the device, a row that tells its state, and a log.
#pragma once

#include <QTimer>
#include <QWidget>

class DeviceFace;
class PanelServer;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Never takes the keyboard focus: a text key types into the window that has it.
class PanelWindow : public QWidget
{
    Q_OBJECT
public:
    explicit PanelWindow(PanelServer &server);

private:
    void buildStatusRow(class QBoxLayout &column);
    void buildButtonRow(class QBoxLayout &column);
    void buildLog(class QBoxLayout &column);
    void onTick();
    void refresh();
    void appendEvents(const QStringList &events, int eventCount);
    void turnPage(int step);
    void togglePlug();
    void toggleLog(bool shown);

    PanelServer &mServer;
    DeviceFace *mpFace;
    QLabel *mpPlace;
    QLabel *mpPlug;
    QLabel *mpBrightness;
    QLabel *mpViolations;
    QLabel *mpLastEvent;
    QPushButton *mpPlugButton;
    QPushButton *mpPrevious;
    QPushButton *mpNext;
    QPlainTextEdit *mpLog;
    QTimer mTick;
    int mRevision = -1;
    int mShownEvents = 0;
};
