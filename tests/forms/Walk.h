#pragma once

#include <QStringList>
#include <QWidget>

namespace pelorin::test {

/// Looks at all controls that a window shows the way somebody does who can't see it, has no mouse,
/// or has a dense or dark screen. Each fault is a line: the control's objectName and what is wrong.
/// What stands in one of the lists at the top of Walk.cpp is meant to be as it is.
class Walk {
public:
    /// The window is shown and active; `window` outlives this.
    explicit Walk(QWidget& window);

    /// Without a name for a screen reader, or with one that says nothing or not which one it is.
    QStringList Names() const;
    /// Texts and controls that have less room than they need.
    QStringList Room() const;
    /// Controls over one another.
    QStringList Overlaps() const;
    /// Texts that don't stand out against their ground as drawn: 4.5 to 1, disabled ones 3 to 1.
    QStringList Contrast() const;
    /// What the Tab key does not reach, reaches out of order, or reaches without showing it. Moves
    /// the focus.
    QStringList TabOrder() const;
    /// What the Tab key reaches, from where the focus is on, once round.
    QList<QWidget*> TabStops(QStringList& faults) const;

private:
    QWidget& m_window;
    QList<QWidget*> m_controls; // shown ones
};

} // namespace pelorin::test
