/// The dialog for the network address of a panel.
#pragma once

#include <QDialog>

class NetworkIpAddress;
class QBoxLayout;

namespace vorlindesk {
class IFrameworkContext;
}

/// Takes the addresses and writes them into the log. Nothing is sent: the protocol has no command for it yet;
/// onSetBtnClicked() and onFactorySetBtnClicked() are where it would be sent.
class NetworkSetDialog : public QDialog
{
    Q_OBJECT
public:
    NetworkSetDialog(vorlindesk::IFrameworkContext &context, QWidget *parent);

    bool setup(); ///< @return false when it cannot be built
    void retranslate();

public slots:
    void onSetBtnClicked();
    void onFactorySetBtnClicked();

private:
    NetworkIpAddress *addRow(QBoxLayout *layout, const char *label, const char *name);

    vorlindesk::IFrameworkContext &mContext;
    NetworkIpAddress *mpIpAddress = nullptr;
    NetworkIpAddress *mpNetmask = nullptr;
    NetworkIpAddress *mpGateway = nullptr;
};
