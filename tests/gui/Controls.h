#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>

#include <functional>

namespace ls::test {

/// Returns the control with that object name. If it is missing, the test fails and the result is a null
/// pointer.
template <typename Control>
Control* Find(const QWidget& form, const char* name)
{
    auto* control = form.findChild<Control*>(QString::fromLatin1(name));
    EXPECT_NE(control, nullptr) << "there is no " << name;
    return control;
}

/// Clicks the button or picks the menu entry with that object name, as a user would. The test fails if it is
/// hidden or disabled.
void Press(const QWidget& form, const char* name);

/// Replaces the text of a line or text edit by typing, as `TypeKeys` does.
void Type(const QWidget& form, const char* name, const QString& text);

/// Types text at the caret of a control. "\n" is the Enter key.
void TypeKeys(QWidget& control, const QString& text);

/// Runs the event loop until the condition is true. Returns false after five seconds.
[[nodiscard]] bool WaitFor(const std::function<bool()>& condition);

/// Shows the window and waits until it is active.
void ShowActive(QWidget& window);

/// Saves a picture of the widget as NAME.png in the folder that LS_PICTURES names. Does nothing if
/// LS_PICTURES is not set.
void TakePicture(QWidget& widget, const char* name);

} // namespace ls::test
