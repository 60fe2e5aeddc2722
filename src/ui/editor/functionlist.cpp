#include "functionlist.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "editorcontext.h"
#include "model/functioncatalogue.h"
#include "model/functionids.h"
#include "ui_common/knownpicture.h"
#include "ui_common/searchfield.h"
#include "ui_common/style.h"
#include "vorlinmimedata.h"

#include <QDataStream>
#include <QDrag>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace Catalogue = vorlinmodel::FunctionCatalogue;

namespace {

constexpr int FidRole = Qt::UserRole; // 0 in the rows that head a group
constexpr int FunctionTextId = 52;
constexpr int ShortcutTextId = 51;
constexpr QSize IconSize{36, 34}; // the shape of a key
constexpr QSize DragSize{90, 84};
constexpr int CaptionHeight = 30;

constexpr char ListStyle[] =
    "QListWidget {background-color: rgb(43, 43, 43);color: white;border: 1px solid rgb(70, 70, 70);"
    "border-radius: 4px;padding: 2px;outline: none;}"
    "QListWidget::item {border-radius: 4px;padding: 0px 4px;}"
    "QListWidget::item:hover {background-color: rgb(62, 62, 62);}"
    "QListWidget::item:selected {background-color: rgb(0, 160, 255);color: white;}"
    "QListWidget::item:disabled {color: rgb(160, 160, 160);background-color: transparent;}";

bool isOffered(int fid, FunctionList::Mode mode)
{
    if (mode != FunctionList::Mode::MultiAction)
        return fid != vorlinmodel::TIME_DELAY_FID;
    // A panel cannot nest lists, and a step cannot turn pages or play a video: a list has no place for
    // either.
    return fid != vorlinmodel::MULTIPLE_ACTIONS_FID && fid != vorlinmodel::CHILDREN_PAGE_FID &&
           fid != vorlinmodel::RETURN_MAIN_FID && fid != vorlinmodel::VIDEO_FID;
}

/// The catalogue's list, and behind it what the editor adds.
QVector<int> functionGroup(FunctionList::Mode mode)
{
    QVector<int> fids;
    for (int row = 0; row < Catalogue::functionCount(); ++row)
        fids.append(Catalogue::functionFid(row));
    fids << vorlinmodel::HOME_PAGE_FID << vorlinmodel::OPEN_FILE_FID << vorlinmodel::OPEN_WEB_FID
         << vorlinmodel::VIDEO_FID;
    fids.erase(std::remove_if(fids.begin(), fids.end(), [mode](int fid) { return !isOffered(fid, mode); }),
               fids.end());
    return fids;
}

QVector<int> shortcutGroup(FunctionList::Mode mode)
{
    QVector<int> fids;
    for (int row = 0; row < Catalogue::shortcutCount(); ++row) {
        if (isOffered(Catalogue::shortcutFid(row), mode))
            fids.append(Catalogue::shortcutFid(row));
    }
    return fids;
}

/// Drags are started by hand: the view would add a format of its own, and move the row.
class DragList : public QListWidget
{
public:
    explicit DragList(QWidget *parent)
        : QListWidget(parent)
    {
        setObjectName(QStringLiteral("functions"));
        setIconSize(IconSize);
        setDragEnabled(true);
        setDragDropMode(QAbstractItemView::DragOnly);
        setSelectionMode(QAbstractItemView::SingleSelection);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        setTextElideMode(Qt::ElideRight);
        setWordWrap(true); // the longer names take two lines
        setStyleSheet(QString::fromLatin1(ListStyle));
    }

protected:
    QMimeData *mimeData(const QList<QListWidgetItem *> items) const override
    {
        auto dragged = std::make_unique<QMimeData>();
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        for (const QListWidgetItem *item : items)
            stream << qint32(item->data(FidRole).toInt());
        dragged->setData(QString::fromLatin1(DragFormat::FunctionId), bytes);
        return dragged.release(); // the drag takes it
    }

    void startDrag(Qt::DropActions) override
    {
        QListWidgetItem *item = currentItem();
        if (!item || item->data(FidRole).toInt() == 0)
            return;
        auto *drag = new QDrag(this); // deletes itself when the drop is over
        drag->setMimeData(mimeData({item}));
        const QPixmap pixmap = item->icon().pixmap(window()->windowHandle(), DragSize);
        drag->setPixmap(pixmap);
        drag->setHotSpot(QPoint(DragSize.width() / 2, DragSize.height() / 2));
        drag->exec(Qt::CopyAction);
    }
};

void addCaption(QListWidget &list, const QString &text)
{
    auto *item = new QListWidgetItem(text, &list);
    item->setFlags(Qt::NoItemFlags);
    item->setSizeHint(QSize(0, CaptionHeight));
    QFont font; // all but the weight comes from the list
    font.setBold(true);
    item->setFont(font);
}

void addFunctions(QListWidget &list, const EditorContext &context, const QVector<int> &fids)
{
    // Room for two lines of text, which the longer names need.
    const int height = std::max(IconSize.height() + 8, 2 * list.fontMetrics().lineSpacing() + 6);
    for (const int fid : fids) {
        auto *item = new QListWidgetItem(knownIcon(functionIcon(fid)), functionName(context, fid), &list);
        item->setData(FidRole, fid);
        item->setToolTip(item->text().toHtmlEscaped());
        item->setSizeHint(QSize(0, height));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
    }
}

} // namespace

FunctionList::FunctionList(EditorContext &context, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mpFilter(new QLineEdit(this))
    , mpList(new DragList(this))
    , mpNothingFound(new QLabel(this))
{
    setObjectName(QStringLiteral("functionList"));
    mpFilter->setObjectName(QStringLiteral("filter"));
    makeSearchField(*mpFilter);
    mpFilter->setStyleSheet(QString::fromLatin1(Style::Fields));
    mpFilter->installEventFilter(this);
    mpList->installEventFilter(this);
    mpNothingFound->setObjectName(QStringLiteral("nothingFound"));
    mpNothingFound->setTextFormat(Qt::PlainText);
    mpNothingFound->setWordWrap(true);
    mpNothingFound->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    connect(mpFilter, &QLineEdit::textChanged, this, &FunctionList::filter);
    connect(mpList, &QListWidget::itemDoubleClicked, this, &FunctionList::activate);
    connect(mpList, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem *item) { emit functionClicked(item->data(FidRole).toInt()); });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(mpFilter);
    layout->addWidget(mpNothingFound);
    layout->addWidget(mpList, 1);
    retranslate();
}

QVector<int> FunctionList::functions(Mode mode)
{
    return functionGroup(mode) + shortcutGroup(mode);
}

void FunctionList::setMode(Mode mode)
{
    if (std::exchange(mMode, mode) != mode)
        fill();
}

void FunctionList::retranslate()
{
    const QString name = mContext.framework.languageManager()->Text(FunctionTextId);
    mpList->setAccessibleName(name);
    mpFilter->setPlaceholderText(tr("Filter"));
    mpFilter->setAccessibleName(tr("Filter"));
    mpNothingFound->setText(tr("No function has this in its name."));
    fill();
}

void FunctionList::fill()
{
    const vorlindesk::LanguageManager &language = *mContext.framework.languageManager();
    const int current = mpList->currentItem() ? mpList->currentItem()->data(FidRole).toInt() : 0;
    mpList->clear();
    addCaption(*mpList, language.Text(FunctionTextId));
    addFunctions(*mpList, mContext, functionGroup(mMode));
    addCaption(*mpList, language.Text(ShortcutTextId));
    addFunctions(*mpList, mContext, shortcutGroup(mMode));
    for (int row = 0; row < mpList->count() && current != 0; ++row) {
        if (mpList->item(row)->data(FidRole).toInt() == current)
            mpList->setCurrentRow(row);
    }
    filter();
}

/// Hides what does not match, and the caption of a group with nothing left in it.
void FunctionList::filter()
{
    const QString wanted = mpFilter->text().trimmed();
    bool anyInGroup = false;
    bool any = false;
    for (int row = mpList->count() - 1; row >= 0; --row) {
        QListWidgetItem *item = mpList->item(row);
        if (item->data(FidRole).toInt() == 0) {
            item->setHidden(!std::exchange(anyInGroup, false));
            continue;
        }
        const bool matches = item->text().contains(wanted, Qt::CaseInsensitive);
        item->setHidden(!matches);
        anyInGroup = anyInGroup || matches;
        any = any || matches;
    }
    mpList->setVisible(any);
    mpNothingFound->setVisible(!any);
}

/// Of functions that the filter leaves.
QVector<int> FunctionList::rowsLeft() const
{
    QVector<int> rows;
    for (int row = 0; row < mpList->count(); ++row) {
        if (!mpList->item(row)->isHidden() && mpList->item(row)->data(FidRole).toInt() != 0)
            rows.append(row);
    }
    return rows;
}

void FunctionList::activate(const QListWidgetItem *item)
{
    if (const int fid = item ? item->data(FidRole).toInt() : 0)
        emit functionActivated(fid);
}

/// Enter gives the function, from the filter field when only one is left; down goes from the field to the
/// list.
bool FunctionList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mpList && event->type() == QEvent::FontChange)
        fill(); // the rows are as high as two lines of text
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == mpList && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        activate(mpList->currentItem());
        return true;
    }
    return (watched == mpFilter && pressInFilter(key)) || QFrame::eventFilter(watched, event);
}

bool FunctionList::pressInFilter(int key)
{
    const QVector<int> rows = rowsLeft();
    switch (key) {
    case Qt::Key_Escape:
        if (mpFilter->text().isEmpty())
            return false;
        mpFilter->clear();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (rows.size() == 1)
            activate(mpList->item(rows.first()));
        return true;
    case Qt::Key_Down:
        if (!rows.isEmpty()) {
            mpList->setCurrentRow(rows.first());
            mpList->setFocus();
        }
        return true;
    default:
        return false;
    }
}
