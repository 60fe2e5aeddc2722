/// The part of the attribute editor that depends on the function: what the key opens, types, presses or
/// plays.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QStackedWidget>

class CombinationField;
class LimitedText;
class QLabel;
class QLineEdit;
class QPushButton;
struct EditorContext;

class ContentEditor : public QStackedWidget
{
    Q_OBJECT
public:
    ContentEditor(EditorContext &context, QWidget *parent);

    /// @p anew: another key than before, or another function, so that nothing in the fields is of the
    /// person's typing.
    void showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record, bool anew);
    bool isUnsent() const; ///< the field has a content that the panel cannot carry
    void commit();         ///< the key is left: takes what is typed and not confirmed yet
    void retranslate();

private:
    LimitedText *addText(const char *name, bool isOutput);
    void addVideo();
    QWidget *pageOf(int fid) const;
    void choosePath();
    void chooseVideo();
    void onTyped(const QString &text);
    void setPath(const vorlinmodel::key_id_t &key, const QString &path);
    void onKeys(const QStringList &names);
    QString explanation(int fid) const;

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    int mFid = 0;
    QLabel *mpExplanation; ///< for functions without a content
    LimitedText *mpPath;
    QPushButton *mpOpen;
    LimitedText *mpAddress;
    LimitedText *mpText;
    CombinationField *mpKeys;
    QWidget *mpVideoPage;
    QLabel *mpVideoLabel;
    QLineEdit *mpVideo;
    QPushButton *mpChooseVideo;
};
