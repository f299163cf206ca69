#pragma once

#include <memory>

class QDialog;
namespace Ui {
class Dialog;
}

/// Fills the window from its form, with its pictures, its palette and its style, in that order:
/// nothing may measure a text before.
std::unique_ptr<Ui::Dialog> fillWindow(QDialog &window);
