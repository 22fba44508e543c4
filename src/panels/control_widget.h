// One drawn control on the screen: shows its record and hands its events to the panel.
#pragma once

#include <QWidget>

#include "panels/panel.h"

class Control_Widget : public QWidget {
  public:
    Control_Widget(Control& record, const Panel& panel, QWidget* parent);

    const Control& Record() const { return record_; }

    // What a screen reader says: "VCF Resonance, 64".
    QString Spoken() const;

    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool Is_Field() const;
    void Take_Focus();
    void Paint_Field(QPainter& painter) const;
    void Show_Focus_Policy();

    Control& record_;
    const Panel& panel_;
    Control shown_;  // the record as it was last shown
};

Mouse_Button Mouse_Button_Of(Qt::MouseButton button);

// Makes the widgets' spoken names known to screen readers. Called once.
void Control_Widgets_Speak();
