#include "panels/push_buttons.h"

namespace {

void Show(Control& button, Picture_Store store, int symbol_place) {
    button.picture = Picture_Of(store);
    if (button.symbol == nullptr) return;
    button.symbol->left = symbol_place;
    button.symbol->top = symbol_place;
}

void Show_Both(Control& button, Picture_Store store, int symbol_place) {
    Show(button, store, symbol_place);
    if (button.twin != nullptr) Show(*button.twin, store, symbol_place);
}

}  // namespace

void Button_Push(Control& button) {
    Show_Both(button, Picture_Store::Button_Dn3D, 4);
}
void Button_Release(Control& button) {
    Show_Both(button, Picture_Store::Button_Up3D, 3);
}
void Dlg2_Press(Control& button) {
    Show(button, Picture_Store::Dlg2_Dn, 6);
}
void Dlg2_Lift(Control& button) {
    Show(button, Picture_Store::Dlg2_Up, 5);
}
