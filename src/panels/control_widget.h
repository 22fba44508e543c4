// One drawn control on the screen: shows its record and hands its events to the panel.
#pragma once

#include <QWidget>

#include "panels/panel.h"
#include "panels/spoken_qt.h"

class Control_Widget : public QWidget, public Speaking {
  public:
    Control_Widget(Control& record, const Panel& panel, QWidget* parent);

    const Control& Record() const { return record_; }

    QAccessible::Role Role() const override;
    QString Spoken_Name() const override;
    QString Spoken_Value() const override;
    std::optional<bool> Lit() const override;
    std::optional<Control_Scale> Scale() const override;
    void Enter(double value) override;
    std::vector<Action> Actions() override;

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
    void Paint_Mark(QPainter& painter) const;
    void Update_Mark();
    void Show_Focus_Policy();

    Control& record_;
    const Panel& panel_;
    Control shown_;  // the record as it was last shown
};

Mouse_Button Mouse_Button_Of(Qt::MouseButton button);
