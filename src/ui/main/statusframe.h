/// The top bar: connection, what the program is doing, versions, and the button that reads the configuration.
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace vorlindesk {
class LanguageManager;
}

class StatusFrame : public QFrame
{
    Q_OBJECT
public:
    /// What the program is doing, for the line that says so.
    enum class Activity { Looking, Reading, Connected, ReadIncomplete };

    StatusFrame(const vorlindesk::LanguageManager &language, QWidget *parent);

    void setConnected(bool connected);
    void setHardwareVersion(const QString &version);
    void setSoftwareVersion(const QString &version);
    /// The button works while a panel is connected and nothing is being read.
    void setReading(bool reading);
    /// @p received and @p announced count keys, and matter only while reading; 0 of 0: not known yet.
    void showActivity(Activity activity, int received = 0, int announced = 0);
    void retranslate();

signals:
    void sigReadDeviceConfig();

private:
    void refreshButton();
    QString activityText() const;

    const vorlindesk::LanguageManager &mLanguage;
    QLabel *mpConnectionIcon;
    QLabel *mpActivity;
    QLabel *mpSoftwareVersion;
    QLabel *mpHardwareVersion;
    QPushButton *mpReadButton;
    QString mSoftwareVersion;
    QString mHardwareVersion;
    bool mConnected = false;
    bool mReading = false;
    Activity mActivity = Activity::Looking;
    int mReceived = 0;
    int mAnnounced = 0;
};
