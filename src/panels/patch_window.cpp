#include "panels/patch_window.h"

#include "panels/patch.h"
#include "panels/patch_printing.h"

Patch_Window::Patch_Window(QMainWindow* parent)
    : Panel_Child_Window(Patch_Panel, Patch_Printing(), parent) {}

void Patch_Window::Close_Asked() {
    Patch_Close_Asked();
}
