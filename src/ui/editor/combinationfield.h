/// The keys of a combination: picked by name, or pressed.
#pragma once

#include <QComboBox>
#include <QStringList>
#include <QWidget>
#include <array>

class KeyCaptureButton;
class QLabel;

class CombinationField : public QWidget
{
    Q_OBJECT
public:
    explicit CombinationField(QWidget *parent);

    /// Names joined with "#". Places that are empty, or that a panel reports as "undefine", show as empty; a
    /// name that the table lacks is shown as it is.
    void showStored(const QString &combination, bool anew);
    void setLabel(const QString &text);
    void commit(); ///< takes a name that is typed and not confirmed yet; what is no name gives way
    void retranslate();

signals:
    /// At most four names by place, without empty ones at the end; those in between stay.
    void sigPicked(const QStringList &names);

private:
    static constexpr int Places = 4;

    QComboBox *makeBox(int place);
    void onPicked(int place, const QString &name);
    void onTyped(int place);
    void showNames(const QStringList &names);

    QLabel *mpLabel;
    KeyCaptureButton *mpCapture;
    std::array<QComboBox *, Places> mBoxes{};
    QString mStored;
    QStringList mNames; ///< as stored, one for each place
};
