/// The list of functions, from which they are dragged onto keys and into multiple actions.
#pragma once

#include <QFrame>
#include <QVector>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
struct EditorContext;

/// A filter field above the functions in their groups.
class FunctionList : public QFrame
{
    Q_OBJECT
public:
    enum class Mode {
        Keys,        ///< main view: everything that a key can have, without 100
        ChildPage,   ///< the same on a child page
        MultiAction, ///< what can be a step, time delay (100) included
    };

    FunctionList(EditorContext &context, QWidget *parent);

    void setMode(Mode mode);
    void retranslate();

    static QVector<int>
    functions(Mode mode); ///< fids in the order of the list: the groups one after the other

signals:
    void functionActivated(int fid); ///< double click, or Enter
    void functionClicked(int fid);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void filter();
    QVector<int> rowsLeft() const;
    bool pressInFilter(int key); ///< @return whether it means something there
    void activate(const QListWidgetItem *item);

    EditorContext &mContext;
    Mode mMode = Mode::Keys;
    QLineEdit *mpFilter;
    QListWidget *mpList;
    QLabel *mpNothingFound;
};

/// Name of a function in the current language; of the video function too, which is not in the catalogue.
QString functionName(const EditorContext &context, int fid);
/// Path of the icon that stands for a function in lists, and becomes the picture of a key whose function has
/// no icon in the catalogue (1, 2, 3, 17).
QString functionIcon(int fid);
/// True for the functions that the editor offers beside the catalogue (1, 2, 3, 17): a key that gets one
/// shows functionIcon() as its own picture.
bool isOfferedByEditor(int fid);
