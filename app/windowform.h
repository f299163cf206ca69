#pragma once

#include <memory>

class QDialog;
namespace Ui {
class Dialog;
}

/// Gives the window its pictures, its palette and its style, and then fills it from its form, whose
/// pieces measure their texts.
std::unique_ptr<Ui::Dialog> fillWindow(QDialog &window);
