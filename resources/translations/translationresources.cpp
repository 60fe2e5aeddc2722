#include "translationresources.h"

#include <QtGlobal>

// Outside of any namespace: the macro declares a function of the global one.
void initTranslationResources()
{
    Q_INIT_RESOURCE(translations);
}
