/// The editor of a multi-action key's steps.
#pragma once

#include "model/keyid.h"

#include <QFrame>

struct EditorContext;

class MultiActionWidget : public QFrame
{
    Q_OBJECT
public:
    MultiActionWidget(EditorContext &context, QWidget *parent);

    bool setup();
    void open(const vorlinmodel::key_id_t &key, int mainFid); ///< loads the key's steps and shows itself
    bool isModified() const;
    /// Asks about unsaved steps (save, discard, stay). @return false to stay.
    bool confirmLeave();
    void addStep(int fid); ///< at the end, or behind the selected one
    void retranslate();

signals:
    void sigBtnReturnClicked(const vorlinmodel::key_id_t &key_id_, int mainFid);
    void actionItemClicked(const vorlinmodel::key_id_t &key_id_, int fid_, int step);
};
