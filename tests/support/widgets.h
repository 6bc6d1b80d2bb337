#pragma once

#include <QLabel>
#include <QPushButton>
#include <QtTest>

/// Ways to find things in a window.
namespace TestSupport {

template <typename T = QWidget>
T *find(const QWidget &window, const char *name)
{
    return window.findChild<T *>(QLatin1String(name));
}

inline QString getText(const QWidget &window, const char *label)
{
    return find<QLabel>(window, label)->text();
}

/// The window's button with the text @p text.
inline QPushButton *getButton(const QWidget &window, const char *text)
{
    const auto buttons = window.findChildren<QPushButton *>();
    for (QPushButton *const button : buttons)
        if (button->text().remove('&') == text)
            return button;
    return nullptr;
}

/// Clicks that button, which has to be visible and enabled.
inline void click(const QWidget &window, const char *text)
{
    QPushButton *const button = getButton(window, text);
    QVERIFY2(button && button->isVisible() && button->isEnabled(), text);
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace TestSupport
