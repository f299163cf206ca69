#pragma once

#include <QString>

/// Why a device could not be opened.
struct OpenFailure
{
    enum class Cause { Other, NoPermission, Busy };

    Cause cause = Cause::Other;
    /// In the system's words; empty where it gave none.
    QString words;
    /// Without permission: the group whose members have it. Empty where there is none.
    QString group;
};
