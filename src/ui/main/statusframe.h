/// The top bar: connection, versions, and the button that reads the configuration.
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
    StatusFrame(const vorlindesk::LanguageManager &language, QWidget *parent);

    void setConnected(bool connected);
    void setHardwareVersion(const QString &version);
    void setSoftwareVersion(const QString &version);
    /// The button works while a panel is connected and nothing is being read.
    void setReading(bool reading);
    void retranslate();

signals:
    void sigReadDeviceConfig();

private:
    void refreshButton();

    const vorlindesk::LanguageManager &mLanguage;
    QLabel *mpConnectionIcon;
    QLabel *mpSoftwareVersion;
    QLabel *mpHardwareVersion;
    QPushButton *mpReadButton;
    QString mSoftwareVersion;
    QString mHardwareVersion;
    bool mConnected = false;
    bool mReading = false;
};
