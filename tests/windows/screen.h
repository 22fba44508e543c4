// The windows on the toolkit's offscreen screen, with real events; ports and boxes are the tests' own.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPixmap>
#include <QTest>
#include <memory>

#include "fakes/fake_message_box.h"
#include "fakes/fake_midi_port.h"
#include "fakes/fake_program.h"
#include "shell/app_window.h"

class Screen : public ::testing::Test {
  protected:
    explicit Screen(const char* scale = "1");
    ~Screen() override;
    void TearDown() override;

    // Starts the program with these settings and shows its window.
    void Start(const std::string& settings = "[MIDI]\nOutput=Synth Out\nInput=Keys In\n");

    // A widget by the name of its control.
    QWidget* Widget(const char* name) const;
    // The name of the widget that has the focus.
    static QString Focused();
    // What a screen reader says of a widget, of its name, its number and its state: "VCF Resonance, 64".
    static QString Heard(QWidget* widget);
    // What the widget shows.
    static QImage Picture_On(QWidget* widget) { return widget->grab().toImage(); }

    std::unique_ptr<QApplication> application_;
    std::unique_ptr<App_Window> window_;
};
