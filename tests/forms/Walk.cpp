#include "Walk.h"

#include "WalkTexts.h"
#include "forms/PictureView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTabBar>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace pelorin::test {

namespace {

/// They show what files hold, shortened where it is too long, with all of it as a tool tip.
const QStringList kShortened{
    u"SBDirectory_1"_s, u"SBDirectory_2"_s, u"SBDirectory_3"_s, u"SBDirectory_4"_s};
/// They lie over the list on purpose.
const QStringList kOverlays{
    u"lblMessage"_s,
    u"lblMessage2"_s,
    u"Label3"_s,
    u"Label4"_s,
    u"ProgressBar1"_s,
    u"Command1"_s,
    u"lblProgress"_s,
    u"pbProgress"_s,
    u"cmdFolderCFG_Empty"_s};

/// Large and bold in colours that are fixed; 3 to 1 serves there.
const QStringList kLarge{u"lblMessage"_s};
/// Buttons by their make, with nothing to be pressed.
const QStringList kDisplays{u"SBDirectory_1"_s};

constexpr double kTextContrast = 4.5;
constexpr double kLargeContrast = 3; // of pictures, too

bool IsInteractive(const QWidget& widget)
{
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QTabBar*>(&widget) != nullptr;
}

bool IsControl(const QWidget& widget)
{
    return IsInteractive(widget) || qobject_cast<const QLabel*>(&widget) != nullptr ||
           qobject_cast<const QGroupBox*>(&widget) != nullptr ||
           qobject_cast<const QProgressBar*>(&widget) != nullptr ||
           dynamic_cast<const forms::PictureView*>(&widget) != nullptr;
}

bool IsPicture(const QWidget& widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button != nullptr && button->text().isEmpty();
}

/// A part that the toolkit makes of another control: a header, a box in a combo box.
bool IsPart(const QWidget& widget)
{
    for (const QWidget* up = widget.parentWidget(); up != nullptr; up = up->parentWidget()) {
        if (qobject_cast<const QComboBox*>(up) != nullptr ||
            qobject_cast<const QAbstractScrollArea*>(up) != nullptr ||
            qobject_cast<const QTabBar*>(up) != nullptr ||
            qobject_cast<const QLineEdit*>(up) != nullptr) {
            return true;
        }
    }
    return false;
}

QRect Place(const QWidget& widget, const QWidget& window)
{
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

QString Line(const QWidget& control, const QString& fault)
{
    return control.objectName() + u": "_s + fault;
}

/// What a screen reader calls it. It asks a combo box and a row of tabs for what is chosen there.
QString HeardName(QWidget& widget)
{
    const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&widget);
    if (qobject_cast<QTabBar*>(&widget) != nullptr) {
        return widget.accessibleName();
    }
    if (qobject_cast<QComboBox*>(&widget) != nullptr) {
        const auto labels = heard->relations(QAccessible::Label);
        return labels.isEmpty() ? QString() : labels.front().first->text(QAccessible::Name);
    }
    return heard != nullptr ? heard->text(QAccessible::Name) : QString();
}

bool IsReached(const QWidget& control, const QList<QWidget*>& visited)
{
    // Of buttons that exclude each other Tab reaches the one that is on, the arrows the others.
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    const bool isOneOf =
        button != nullptr && button->group() != nullptr && button->group()->exclusive();
    return std::any_of(visited.begin(), visited.end(), [&](const QWidget* widget) {
        const auto* other = qobject_cast<const QAbstractButton*>(widget);
        return widget == &control ||
               (isOneOf && other != nullptr && other->group() == button->group());
    });
}

// ---- Room ----

bool IsTooSmall(const QWidget& control)
{
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        if (label->wordWrap()) {
            return label->heightForWidth(label->width()) > label->height();
        }
    }
    if (qobject_cast<const QAbstractButton*>(&control) != nullptr ||
        qobject_cast<const QLabel*>(&control) != nullptr) {
        const QSize wanted = control.sizeHint();
        const bool shortened = kShortened.contains(control.objectName());
        return (!shortened && wanted.width() > control.width()) ||
               wanted.height() > control.height();
    }
    return control.height() < control.fontMetrics().height();
}

// ---- Contrast ----

double Luminance(QRgb colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double ContrastOf(QRgb one, QRgb other)
{
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// What stands out most against the ground, which is the colour that most of the place has.
double ContrastIn(const QImage& image, const QRect& place)
{
    std::map<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const auto ground =
        std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
            return a.second < b.second;
        });
    double best = 1;
    for (const auto& [colour, count] : counts) {
        best = std::max(best, ContrastOf(colour, ground->first));
    }
    return best;
}

// ---- Tab order ----

/// Whether what lies at `after` is read before what lies at `before`, by rows and columns.
bool IsReadBefore(const QRect& after, const QRect& before)
{
    const bool above = after.bottom() < before.top() && after.left() < before.right();
    const bool sameRow = after.top() <= before.bottom() && before.top() <= after.bottom();
    return above || (sameRow && after.right() < before.left());
}

} // namespace

Walk::Walk(QWidget& window)
    : m_window(window)
{
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == &window && IsControl(*widget) &&
            !IsPart(*widget)) {
            m_controls << widget;
        }
    }
}

QStringList Walk::Names() const
{
    QStringList faults;
    QHash<QString, QString> owners;
    for (QWidget* control : m_controls) {
        const QString name = HeardName(*control);
        const auto* label = qobject_cast<QLabel*>(control);
        if (label != nullptr && label->text().isEmpty() && label->pixmap().isNull()) {
            continue;
        }
        if (control->objectName().isEmpty()) {
            faults << Line(
                *control,
                u"no objectName, "_s + QString::fromLatin1(control->metaObject()->className()));
        }
        if (name.trimmed().isEmpty() || name == control->objectName()) {
            faults << Line(*control, u"no accessible name"_s);
        } else if (IsInteractive(*control)) {
            if (owners.contains(name)) {
                faults << Line(*control, u"is called \"%1\" as %2 is"_s.arg(name, owners[name]));
            }
            owners[name] = control->objectName();
        }
    }
    return faults;
}

QStringList Walk::Room() const
{
    QStringList faults;
    for (const QWidget* control : m_controls) {
        if (IsTooSmall(*control)) {
            const QSize wanted = control->sizeHint();
            faults << Line(
                *control,
                u"is %1 x %2 and needs %3 x %4"_s.arg(control->width())
                    .arg(control->height())
                    .arg(wanted.width())
                    .arg(wanted.height()));
        }
        for (const QString& text : TooWideTexts(*control)) {
            faults << Line(*control, u"has no room for \"%1\""_s.arg(text));
        }
        for (const QWidget* up = control->parentWidget(); up != nullptr; up = up->parentWidget()) {
            const QRect place(control->mapTo(up, QPoint(0, 0)), control->size());
            if (!up->rect().contains(place)) {
                faults << Line(*control, u"is cut off by its parent"_s);
                break;
            }
            if (up == &m_window) {
                break;
            }
        }
    }
    return faults;
}

QStringList Walk::Overlaps() const
{
    QStringList faults;
    for (qsizetype i = 0; i < m_controls.size(); ++i) {
        for (qsizetype j = i + 1; j < m_controls.size(); ++j) {
            const QWidget& a = *m_controls[i];
            const QWidget& b = *m_controls[j];
            const bool meant =
                kOverlays.contains(a.objectName()) != kOverlays.contains(b.objectName());
            if (!meant && !a.isAncestorOf(&b) && !b.isAncestorOf(&a) &&
                Place(a, m_window).intersects(Place(b, m_window))) {
                faults << Line(a, u"overlaps "_s + b.objectName());
            }
        }
    }
    return faults;
}

QStringList Walk::Contrast() const
{
    QStringList faults;
    const QImage image = m_window.grab().toImage();
    const double ratio = image.devicePixelRatio();
    for (const QWidget* control : m_controls) {
        const double least = IsPicture(*control) || kLarge.contains(control->objectName())
                                 ? kLargeContrast
                                 : kTextContrast;
        const QPoint origin = Place(*control, m_window).topLeft();
        for (const QRect& text : TextPlaces(*control)) {
            const QRect logical = text.translated(origin);
            const QRect place =
                QRectF(QPointF(logical.topLeft()) * ratio, QSizeF(logical.size()) * ratio)
                    .toAlignedRect()
                    .intersected(image.rect());
            const double found = place.isEmpty() ? 21 : ContrastIn(image, place);
            if (found < least) {
                faults << Line(
                    *control,
                    u"has a contrast of %1 at %2, %3"_s.arg(found, 0, 'f', 2)
                        .arg(text.x())
                        .arg(text.y()));
            }
        }
    }
    return faults;
}

QList<QWidget*> Walk::TabStops(QStringList& faults) const
{
    QList<QWidget*> visited;
    constexpr int kMost = 200;
    for (int i = 0; i < kMost; ++i) {
        QWidget* const from = visited.isEmpty() ? &m_window : visited.back();
        const QImage focused = from->grab().toImage();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (m_controls.contains(from) && focused == from->grab().toImage()) {
            faults << Line(*from, u"does not show its focus"_s);
        }
        QWidget* const focus = QApplication::focusWidget();
        if (focus == nullptr || visited.contains(focus)) {
            break;
        }
        visited << focus;
    }
    return visited;
}

QStringList Walk::TabOrder() const
{
    QStringList faults;
    const QList<QWidget*> visited = TabStops(faults);
    for (QWidget* control : m_controls) {
        if (IsInteractive(*control) && control->isEnabled() && !IsReached(*control, visited) &&
            !kDisplays.contains(control->objectName())) {
            faults << Line(*control, u"is out of the reach of the Tab key"_s);
        }
    }
    for (qsizetype i = 1; i < visited.size(); ++i) {
        const QWidget& before = *visited[i - 1];
        const QWidget& after = *visited[i];
        if (before.parentWidget() == after.parentWidget() &&
            IsReadBefore(Place(after, m_window), Place(before, m_window))) {
            faults << Line(
                after, u"comes after %1 and stands before it"_s.arg(before.objectName()));
        }
    }
    return faults;
}

} // namespace pelorin::test
