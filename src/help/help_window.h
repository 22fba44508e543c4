// The window Help on the screen: three pages, and the buttons that turn them.
#pragma once

#include "desk/child_window.h"

class Panel_Window;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
struct Drop_Down;

class Help_Window : public Child_Window {
  public:
    explicit Help_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Close_Asked() override;

  private:
    QWidget* Make_Credits();
    QWidget* Make_Howto();
    QWidget* Make_Search();
    QListWidget* List(const char* name, const char* spoken, void (*chosen)(int));
    QPlainTextEdit* Text(const char* name, const char* spoken);
    QPlainTextEdit* Read_Out(const char* name, const char* spoken);

    QWidget* frame_credits_;
    QPlainTextEdit* about_;
    QListWidget* credits_;
    QPlainTextEdit* credits_why_;

    QWidget* frame_howto_;
    Panel_Window* ground_;
    QPlainTextEdit* info_;

    QWidget* frame_search_;
    QLineEdit* keyword_;
    QListWidget* key_list_;
    QPlainTextEdit* description_;

    QPushButton* cmd_howto_;
    QPushButton* cmd_search_;
    QPushButton* cmd_about_;
    int keyword_focused_ = 0;
};
