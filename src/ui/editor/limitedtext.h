/// A text field that shows how much of what the panel can carry is used, and marks what it cannot.
#pragma once

#include "textlimit.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

/// A label with a byte counter above, the field, and below it a line that appears while the text cannot be
/// carried. Such a text stays in the field, marked, and is not handed on: what was stored last stays.
class LimitedText : public QWidget
{
    Q_OBJECT
public:
    enum class Form {
        Line,      ///< hands on what TextLimit::singleLine() leaves
        Paragraph, ///< several lines; grows with the room there is
    };

    /// @p name becomes the object name of the field; counter and mark get it with "Counter" and "Problem"
    /// behind.
    LimitedText(Form form, TextLimit::Encoding encoding, const QString &name, QWidget *parent);

    void setLabel(const QString &text);
    void setPlaceholder(const QString &text); ///< seen while the field is empty
    void addBeside(QWidget *widget);          ///< right of the field, which takes it over
    /// Shows what is stored. Unless @p anew (another key or function), a value that was shown before leaves
    /// alone what the person is typing.
    void showStored(const QString &text, bool anew);
    void type(const QString &text);           ///< as if the person had typed it
    bool isUnsent() const { return mUnsent; } ///< the field has something else than what is stored
    void focusField();                        ///< and selects the text
    void retranslate();

signals:
    void sigEdited(const QString &text); ///< another text than the stored one, and it can be carried

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *field() const;
    QString text() const;
    void setText(const QString &text);
    bool canUndoHere(bool redo) const;
    void onTextChanged();
    void showMark();
    QString problem(const TextLimit::Check &check) const;

    const TextLimit::Encoding mEncoding;
    QLabel *mpLabel;
    QLabel *mpCounter;
    QHBoxLayout *mpFieldRow;
    QLineEdit *mpLine = nullptr;           ///< one of the two
    QPlainTextEdit *mpParagraph = nullptr; ///< is there
    QLabel *mpProblem;
    QString mStored;
    bool mUnsent = false;
    bool mShowing = false; ///< the field is being set by showStored()
};
