/// A group of the settings page.
#pragma once

#include <QFrame>

class QGridLayout;
class QLabel;

/// A frame with a caption above rows of two columns. All groups have a left column of the same width, so that
/// their rows stand in line.
class SettingsCard : public QFrame
{
    Q_OBJECT
public:
    explicit SettingsCard(QWidget *parent);

    void setCaption(const QString &caption); ///< an empty one is hidden
    /// @return the label on the left of @p content.
    QLabel *addRow(QWidget *content);
    /// @p action stands on the left, @p explanation says what it does.
    void addActionRow(QWidget *action, QLabel *explanation);
    void addWide(QWidget *content); ///< across both columns

    static constexpr char Style[] =
        "SettingsCard {background-color: rgb(46, 46, 46);border: 1px solid rgb(70, 70, 70);border-radius: "
        "6px;}"
        "#cardCaption {font-size: 16px;font-weight: bold;}"
        "#explanation, #status {color: rgb(190, 190, 190);font-size: 13px;}";

private:
    void addLeft(QWidget *left);

    QLabel *mpCaption;
    QGridLayout *mpRows;
};

/// A label for @p card that says in grey what stands beside or above it.
QLabel *explanationLabel(QWidget *parent);
