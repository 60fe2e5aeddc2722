/// What the tools and the function list do with the selected keys of a grid.
#pragma once

#include "model/keyid.h"
#include "ui_common/messagebox.h"

#include <QObject>
#include <QVector>
#include <functional>

class KeyboardWidget;
struct EditorContext;

/// Each operation is one step of the history. While an object of this class lives, it answers the context's
/// deleteKeys and completeChildPages. @p context outlives it.
class KeyCommands : public QObject
{
    Q_OBJECT
public:
    using Ask = std::function<QMessageBox::StandardButton(const MessageBox::Question &question)>;

    KeyCommands(EditorContext &context, Ask ask, QObject *parent);
    ~KeyCommands() override;

    void copy(KeyboardWidget &grid);
    void cut(KeyboardWidget &grid); ///< keys stay when the question about them is cancelled
    void paste(KeyboardWidget &grid);
    void remove(KeyboardWidget &grid);
    void putOnEveryPage(KeyboardWidget &grid);
    void give(KeyboardWidget &grid, int fid); ///< a function, to the current key

    /// Completes a key that has got function 18, within the step in which it got it: the way back on its
    /// child page. Says what the person should know.
    void completeChildPage(const vorlinmodel::key_id_t &key);

signals:
    void sigNotice(const QString &text);

private:
    void deleteKeys(const QVector<vorlinmodel::key_id_t> &keys, const std::function<void()> &removeKeys);
    QStringList completeChildPages(const QVector<vorlinmodel::key_id_t> &keys);
    void addReturnKey(const vorlinmodel::key_id_t &key);
    void notify(const QStringList &notices);

    EditorContext &mContext;
    const Ask mAsk;
};
