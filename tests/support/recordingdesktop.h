/// Writes down what it is asked for, and opens nothing: what is opened in tests may come from random bytes.
#pragma once

#include "platform/desktop.h"

#include <QStringList>
#include <QUrl>

class RecordingDesktop : public vorlindesk::IDesktop
{
public:
    bool openUrl(const QUrl &url) override { return note("url " + url.toEncoded()); }
    bool openFile(const QString &path) override { return note("file " + path.toUtf8()); }
    void setClipboardText(const QString &text) override { note("clipboard " + text.toUtf8()); }
    bool pressPaste() override { return note("paste"); }

    QStringList calls;
    bool succeeds = true;

private:
    bool note(const QByteArray &call)
    {
        calls.append(QString::fromUtf8(call));
        return succeeds;
    }
};
