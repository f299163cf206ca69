#include "app/datafolder.h"

QString portsFolder()
{
    return {};
}
