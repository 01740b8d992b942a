#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>

#include <functional>

namespace ls::test {

/// The control of that object name; a control that is missing fails the test and gives a null pointer.
template <typename Control>
Control* Find(const QWidget& form, const char* name)
{
    auto* control = form.findChild<Control*>(QString::fromLatin1(name));
    EXPECT_NE(control, nullptr) << "there is no " << name;
    return control;
}

/// Clicks the button, or picks the menu entry, of that object name as a user would; one that is hidden or
/// disabled fails the test instead.
void Press(const QWidget& form, const char* name);

/// Replaces the text of a line or text edit by typing, as `TypeKeys` does.
void Type(const QWidget& form, const char* name, const QString& text);

/// Types text where the caret of a control is, "\n" by the Enter key.
void TypeKeys(QWidget& control, const QString& text);

/// Runs the event loop until the condition holds; false when it did not within five seconds.
[[nodiscard]] bool WaitFor(const std::function<bool()>& condition);

/// Shows the window and waits until it is active.
void ShowActive(QWidget& window);

/// Saves how the widget looks as NAME.png in the folder that LS_PICTURES names; does nothing without it.
void TakePicture(QWidget& widget, const char* name);

} // namespace ls::test
