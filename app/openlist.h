#pragma once

class QComboBox;

/// Makes an open drop-down list show all of the entries that have just replaced its former ones.
void adjustOpenList(QComboBox &box);
