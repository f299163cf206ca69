#pragma once

class QTableWidget;

/// Gives a table the look that command table and message log share, and its size: rows of 36 pixels
/// without a vertical header, whole rows selectable, no grid.
void styleTable(QTableWidget &table, int columns, int rows);
