// bench_bare_window VISIBLE HIDDEN ROWS: a window of so many plain widgets with Korean texts beside a
// list of so many Korean rows, and nothing behind it. Tells when it is painted, as bench_pelorin.

#include "StartReport.h"
#include "Words.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QStackedWidget>
#include <QStringListModel>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

QString KoreanText(int number)
{
    const auto& quality =
        bench::kQualities[static_cast<std::size_t>(number) % bench::kQualities.size()];
    const auto& thing = bench::kThings[static_cast<std::size_t>(number) % bench::kThings.size()];
    return quality.Korean() + u' ' + thing.Korean() + u' ' + QString::number(number);
}

QWidget* PlainWidget(int number, QWidget* parent)
{
    const QString text = KoreanText(number);
    switch (number % 4) {
    case 0: return new QLabel(text, parent);
    case 1: return new QPushButton(text, parent);
    case 2: return new QLineEdit(text, parent);
    default: return new QCheckBox(text, parent);
    }
}

/// A page of widgets in rows of ten.
QWidget* PageOf(int widgets, int first)
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    for (int n = 0; n < widgets; ++n) {
        grid->addWidget(PlainWidget(first + n, page), n / 10, n % 10);
    }
    return page;
}

class PaintedList : public QListView {
public:
    using QListView::QListView;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QListView::paintEvent(event);
        if (!m_told) {
            m_told = true;
            QMetaObject::invokeMethod(
                this,
                [] {
                    bench::StartReport report;
                    bench::CountWidgets(report);
                    report.Send();
                    _exit(0);
                },
                Qt::QueuedConnection);
        }
    }

private:
    bool m_told = false;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int visible = arguments.value(1).toInt();
    const int hidden = arguments.value(2).toInt();
    QStringList titles;
    for (int n = arguments.value(3).toInt(); n > 0; --n) {
        titles << KoreanText(n);
    }
    QStringListModel rows(titles);
    auto* list = new PaintedList;
    list->setModel(&rows);
    list->setUniformItemSizes(true);

    // The window itself, its inner widgets, the list with its parts, the pages.
    constexpr int kFrame = 8;
    QMainWindow window;
    auto* pages = new QStackedWidget;
    pages->addWidget(PageOf(qMax(0, visible - kFrame), 0));
    pages->addWidget(PageOf(hidden, visible));
    auto* centre = new QWidget;
    auto* row = new QHBoxLayout(centre);
    row->addWidget(list);
    row->addWidget(pages);
    window.setCentralWidget(centre);
    window.resize(1200, 800);
    window.show();
    return QApplication::exec();
}
