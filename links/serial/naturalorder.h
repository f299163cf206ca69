#pragma once

#include <QString>

/// Whether one name stands before another when numbers in them are compared by value: "ttyS2"
/// stands before "ttyS10". A strict weak order, for sorting.
bool naturallyBefore(const QString &left, const QString &right);
