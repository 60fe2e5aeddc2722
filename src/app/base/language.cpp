#include "language.h"

#include "log.h"
#include "logtext.h"
#include "systemsettings.h"

#include <QCoreApplication>
#include <QTranslator>

namespace vorlindesk {
namespace {

constexpr int LanguageMask = 0xFF;

struct Translation
{
    const char *resource;
    const char *locale; ///< of the toolkit's own translation; empty = none
};

Translation translationOf(int language)
{
    switch (language) {
    case 0:
        return {":/translations/en.qm", ""};
    case 1:
        return {":/translations/zh_s.qm", "zh_CN"};
    case 2:
        return {":/translations/zh_t.qm", "zh_TW"};
    default:
        return {":/translations/chs.qm", ""};
    }
}

} // namespace

QString translationResource(int language)
{
    return QLatin1String(translationOf(language).resource);
}

LanguageManager::LanguageManager(QTranslator *translator, QObject *parent)
    : QObject(parent)
    , mpTranslator(translator)
    , mpToolkitTranslator(new QTranslator(this))
{}

bool LanguageManager::Init()
{
    mLanguage = SystemSettings::language();
    return loadTranslation(mLanguage);
}

QString LanguageManager::Text(int id) const
{
    return tableText(id, mLanguage);
}

void LanguageManager::setLanguage(int value)
{
    mLanguage = value & LanguageMask;
    Log(LogLevel::Info, LogText::SetLanguage, language());
    SystemSettings::setLanguage(value);
    loadTranslation(mLanguage);
    emit sigLanguageChanged();
}

int LanguageManager::language() const
{
    return mLanguage;
}

/// Taken out first: only installing tells the widgets that the language has changed.
bool LanguageManager::loadTranslation(int language)
{
    loadToolkitTranslation(QLatin1String(translationOf(language).locale));
    QCoreApplication::removeTranslator(mpTranslator);
    const QString resource = translationResource(language);
    if (!mpTranslator->load(resource)) {
        Log(LogLevel::Error, LogText::NoTranslation, qUtf8Printable(resource));
        return false;
    }
    QCoreApplication::installTranslator(mpTranslator); // after the toolkit's: the last one is asked first
    return true;
}

/// Its files need not be there; English needs none.
void LanguageManager::loadToolkitTranslation(const QString &locale)
{
    QCoreApplication::removeTranslator(mpToolkitTranslator);
    const QString folder = QCoreApplication::applicationDirPath() + QLatin1String("/translations");
    if (!locale.isEmpty() && mpToolkitTranslator->load(QLatin1String("qt_") + locale, folder))
        QCoreApplication::installTranslator(mpToolkitTranslator);
}

} // namespace vorlindesk
