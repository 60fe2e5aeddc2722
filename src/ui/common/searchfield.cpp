#include "searchfield.h"

#include "knownpicture.h"

#include <QAction>
#include <QLineEdit>

void makeSearchField(QLineEdit &field)
{
    field.addAction(knownIcon(QStringLiteral(":/icon/edit/search.png")), QLineEdit::LeadingPosition);
    QAction *clear =
        field.addAction(knownIcon(QStringLiteral(":/icon/edit/close.png")), QLineEdit::TrailingPosition);
    clear->setObjectName(QStringLiteral("clear"));
    clear->setVisible(!field.text().isEmpty());
    QObject::connect(clear, &QAction::triggered, &field, &QLineEdit::clear);
    QObject::connect(&field, &QLineEdit::textChanged, clear,
                     [clear](const QString &text) { clear->setVisible(!text.isEmpty()); });
}
