#pragma once

class QWidget;

/// Whether the user sees the field on its page or gets to see it by a change of tabs.
bool isReachable(const QWidget* field, const QWidget* page);

/// Brings each tab forward that the field is on, as far as its window.
void bringTabForward(QWidget* field);
