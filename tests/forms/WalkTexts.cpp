#include "WalkTexts.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTreeView>

namespace pelorin::test {

namespace {

using Places = QList<QRect>;

QRect Inside(const QRect& rect)
{
    constexpr int kFrame = 3;
    return rect.adjusted(kFrame, kFrame, -kFrame, -kFrame);
}

bool IsUpright(const QTabBar& tabs)
{
    return tabs.shape() == QTabBar::RoundedEast;
}

QRect EditField(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    return combo.style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
}

Places PlacesOf(const QCheckBox& box)
{
    QStyleOptionButton option;
    option.initFrom(&box);
    return {box.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box)};
}

Places PlacesOf(const QAbstractButton& button)
{
    const bool isEmpty = button.text().isEmpty() && button.icon().isNull();
    return isEmpty ? Places() : Places{Inside(button.rect())};
}

Places PlacesOf(const QLabel& label)
{
    return label.text().isEmpty() ? Places() : Places{label.contentsRect()};
}

Places PlacesOf(const QGroupBox& group)
{
    QStyleOptionGroupBox option;
    option.initFrom(&group);
    option.text = group.title();
    option.subControls = QStyle::SC_GroupBoxLabel;
    return {group.style()->subControlRect(
        QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &group)};
}

Places PlacesOf(const QLineEdit& box)
{
    const bool isEmpty = box.displayText().isEmpty() && box.placeholderText().isEmpty();
    return isEmpty ? Places() : Places{Inside(box.rect())};
}

Places PlacesOf(const QComboBox& combo)
{
    return combo.currentText().isEmpty() ? Places() : Places{EditField(combo)};
}

Places PlacesOf(const QTabBar& tabs)
{
    Places places;
    for (int i = 0; i < tabs.count(); ++i) {
        // In an upright bar words stand below their picture.
        const QRect tab = Inside(tabs.tabRect(i));
        places << tab.adjusted(0, IsUpright(tabs) ? tab.height() / 2 : 0, 0, 0);
    }
    return places;
}

Places PlacesOf(const QPlainTextEdit& text)
{
    return text.toPlainText().isEmpty() ? Places() : Places{text.viewport()->geometry()};
}

Places PlacesOf(const QAbstractItemView& view)
{
    constexpr int kRows = 6;
    Places places;
    const int rows = view.model() != nullptr ? view.model()->rowCount() : 0;
    for (int row = 0; row < qMin(kRows, rows); ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        const QRect seen = view.visualRect(index).intersected(view.viewport()->rect());
        if (!index.data().toString().isEmpty() && !seen.isEmpty()) {
            places << seen.translated(view.viewport()->pos());
        }
    }
    return places;
}

/// Keeps the texts that are wider than their places.
class Measure {
public:
    explicit Measure(const QWidget& control)
        : m_metrics(control.fontMetrics())
    {}
    void Check(const QString& text, int width)
    {
        if (m_metrics.horizontalAdvance(text) > width) {
            tooWide << text;
        }
    }
    QStringList tooWide;

private:
    QFontMetrics m_metrics;
};

void MeasureTabs(const QTabBar& tabs, Measure& measure)
{
    for (int i = 0; i < tabs.count(); ++i) {
        // Words stand below one another in an upright bar.
        for (const QString& text : tabs.tabText(i).split(IsUpright(tabs) ? u' ' : u'\0')) {
            measure.Check(text, tabs.tabRect(i).width());
        }
        if (!tabs.rect().contains(tabs.tabRect(i))) {
            measure.tooWide << tabs.tabText(i);
        }
    }
}

void MeasureTree(const QTreeView& tree, Measure& measure)
{
    // Columns can be widened; what stands in their heads shows in full as a tool tip.
    for (int row = 0; tree.header()->isHidden() && row < tree.model()->rowCount(); ++row) {
        const QModelIndex index = tree.model()->index(row, 0);
        measure.Check(index.data().toString(), tree.visualRect(index).width());
    }
}

} // namespace

QList<QRect> TextPlaces(const QWidget& control)
{
    if (const auto* box = qobject_cast<const QCheckBox*>(&control)) {
        return PlacesOf(*box);
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return PlacesOf(*button);
    }
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return PlacesOf(*label);
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&control)) {
        return PlacesOf(*group);
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(&control)) {
        return PlacesOf(*box);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
        return PlacesOf(*combo);
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
        return PlacesOf(*tabs);
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&control)) {
        return PlacesOf(*text);
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(&control);
    return view != nullptr ? PlacesOf(*view) : Places();
}

QStringList TooWideTexts(const QWidget& control)
{
    Measure measure(control);
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
        for (int i = 0; i < combo->count(); ++i) {
            measure.Check(combo->itemText(i), EditField(*combo).width());
        }
    } else if (const auto* box = qobject_cast<const QLineEdit*>(&control)) {
        measure.Check(box->placeholderText(), Inside(box->rect()).width());
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&control)) {
        measure.Check(group->title(), group->width());
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
        MeasureTabs(*tabs, measure);
    } else if (const auto* tree = qobject_cast<const QTreeView*>(&control)) {
        MeasureTree(*tree, measure);
    }
    return measure.tooWide;
}

} // namespace pelorin::test
