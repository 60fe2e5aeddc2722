/// Turns presses on the person's keyboard into names of the key-name table.
#pragma once

#include <QPushButton>
#include <QStringList>

class QKeyEvent;

namespace KeyCapture {

constexpr int MostKeys = 4; ///< of a combination

struct Pressed
{
    int key = 0;            ///< Qt::Key
    quint32 position = 0;   ///< scan code as PC keyboards number it (Esc 1, 1 2, ...); 0 when unknown
    quint32 virtualKey = 0; ///< as the system names the key: an X keysym, or a virtual key of Windows
};

/// @return the name of the key in the table, empty for a key that the table lacks.
QString nameOf(const Pressed &pressed);

} // namespace KeyCapture

/// While it is checked, every key that is pressed is taken instead of doing what it does, shortcuts, Tab and
/// Esc included. Ends when all keys are released.
class KeyCaptureButton : public QPushButton
{
    Q_OBJECT
public:
    explicit KeyCaptureButton(QWidget *parent);
    void retranslate();
    void cancel(); ///< forgets what was pressed

signals:
    void sigPressed(const QStringList &names);  ///< so far, in the order pressed, at most four
    void sigCaptured(const QStringList &names); ///< all keys are released
    void sigCancelled();                        ///< ended without a key

protected:
    bool event(QEvent *event) override;

private:
    void press(const QKeyEvent &event);
    void release(const QKeyEvent &event);
    void onToggled(bool on);

    QStringList mNames;
    QStringList mHeld;
};
