/// Uses the window by mouse, and saves what it looks like.
#pragma once

#include "base/language.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keywidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <functional>

class Photographer
{
public:
    Photographer(QWidget &window, QString folder, QString suffix)
        : mWindow(window)
        , mFolder(std::move(folder))
        , mSuffix(std::move(suffix))
    {}

    void wait(int milliseconds)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }

    bool waitUntil(const std::function<bool()> &condition)
    {
        constexpr int patience = 30000; // ms
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < patience)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return condition();
    }

    /// The whole window, or the dialog over it that has the name @p dialog.
    void take(const char *name, const char *dialog = nullptr)
    {
        QWidget *what = dialog ? named(dialog) : &mWindow;
        mFailed = mFailed || !what;
        if (what)
            take(name, *what);
    }
    /// English comes last, and stays.
    void takeInEachLanguage(vorlindesk::LanguageManager &language, const char *name,
                            const char *dialog = nullptr)
    {
        constexpr std::pair<int, const char *> languages[] = {{1, "_zh_s"}, {2, "_zh_t"}, {0, ""}};
        for (const auto &[value, suffix] : languages) {
            language.setLanguage(value);
            take((QByteArray(name) + suffix).constData(), dialog);
        }
    }
    void take(const char *name, QWidget &widget)
    {
        wait(300);
        const QString path = QStringLiteral("%1/%2%3.png").arg(mFolder, QString::fromLatin1(name), mSuffix);
        if (widget.grab().save(path, "PNG"))
            std::printf("%s\n", qPrintable(path));
        else
            mFailed = true;
    }

    /// Does @p open, which shows a dialog and waits for its end: when the dialog has been there for @p delay
    /// ms it is handed to @p use, which takes pictures of it and closes it.
    void withDialog(const std::function<void()> &open, const std::function<void(QWidget &dialog)> &use,
                    int delay = 1000)
    {
        bool seen = false;
        QTimer::singleShot(delay, &mWindow, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            seen = dialog != nullptr;
            if (dialog)
                use(*dialog);
        });
        open();
        mFailed = mFailed || !seen;
    }

    template <class Child>
    Child *child(const char *name)
    {
        auto *found = mWindow.findChild<Child *>(QString::fromLatin1(name));
        mFailed = mFailed || !found;
        return found;
    }

    KeyWidget *key(int keyId)
    {
        for (KeyboardWidget *grid : mWindow.findChildren<KeyboardWidget *>()) {
            if (grid->isVisible())
                return grid->cell(keyId);
        }
        return nullptr;
    }

    void click(QWidget *target, bool twice = false)
    {
        if (!target) {
            mFailed = true;
            return;
        }
        const QPoint centre = target->rect().center();
        send(target, QEvent::MouseButtonPress, centre);
        send(target, QEvent::MouseButtonRelease, centre);
        if (twice) {
            send(target, QEvent::MouseButtonDblClick, centre);
            send(target, QEvent::MouseButtonRelease, centre);
        }
        wait(300);
    }

    void drag(QWidget *target, const QPoint &from, const QPoint &to)
    {
        send(target, QEvent::MouseButtonPress, from);
        send(target, QEvent::MouseMove, to);
        send(target, QEvent::MouseButtonRelease, to);
        wait(100);
    }

    QWidget *named(const char *name) { return mWindow.findChild<QWidget *>(QString::fromLatin1(name)); }
    void clickNamed(const char *name) { click(named(name)); }
    void close(const char *dialog)
    {
        if (QWidget *widget = named(dialog))
            widget->close();
        wait(300);
    }
    void resize(QSize size)
    {
        mWindow.resize(size);
        wait(300);
    }
    /// Into view, where its page can be scrolled.
    void scrollTo(const char *name)
    {
        QWidget *widget = named(name);
        for (QWidget *parent = widget; parent; parent = parent->parentWidget()) {
            if (auto *area = qobject_cast<QScrollArea *>(parent))
                area->ensureWidgetVisible(widget);
        }
    }
    bool failed() const { return mFailed; }

private:
    static void send(QWidget *target, QEvent::Type type, const QPoint &place)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }

    QWidget &mWindow;
    const QString mFolder;
    const QString mSuffix;
    bool mFailed = false;
};
