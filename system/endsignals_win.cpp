#include "system/endsignals.h"

EndSignals::EndSignals(int /*patienceSeconds*/, QObject *parent)
    : QObject(parent)
{}
