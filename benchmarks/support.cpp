// SPDX-License-Identifier: MIT
#include "support.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <utility>

namespace {

/** The fixed number of steps per run, which scripts/bench sets to count instructions. */
constexpr char iterationsVariable[] = "OLV_BENCH_ITERATIONS";

std::atomic<quint64> allocations = 0;

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): glibc's names of its own functions
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

// These replace the C library's functions also for Qt and the C++ library, so that their calls are
// counted as well.
void *malloc(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

void *realloc(void *memory, std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}
}
// NOLINTEND(bugprone-reserved-identifier)

benchmark::internal::Benchmark *addBenchmark(const std::string &name, Benchmark function)
{
    auto *added = benchmark::RegisterBenchmark(name.c_str(), std::move(function));
    const int iterations = qEnvironmentVariableIntValue(iterationsVariable);
    return iterations > 0 ? added->Iterations(iterations) : added;
}

void showAndWait(QWidget &window)
{
    window.show();
    while (!window.windowHandle()->isExposed()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    settle();
}

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void paintUpdates(QWidget &window)
{
    QCoreApplication::sendPostedEvents(&window, QEvent::UpdateRequest);
}

QImage pictureOf(QWidget &widget)
{
    QImage picture(widget.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    widget.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

void measurePainting(benchmark::State &state, QWidget &widget, const std::function<void()> &change)
{
    QImage target(widget.size(), QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::white);
    while (state.KeepRunning()) {
        if (change) {
            change();
        }
        widget.render(&target, {}, {}, QWidget::DrawChildren);
    }
}

UndrawnWidget::UndrawnWidget(const QWidget &other, QVector<const char *> read, QWidget *parent)
    : QWidget(parent)
    , m_read(std::move(read))
{
    const QList<QByteArray> names = other.dynamicPropertyNames();
    for (const QByteArray &name : names) {
        setProperty(name.constData(), other.property(name.constData()));
    }
}

void UndrawnWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const char *name : qAsConst(m_read)) {
        benchmark::DoNotOptimize(property(name));
    }
}

void enter(QWidget &widget, QPointF place)
{
    QEnterEvent event(place, place, widget.mapToGlobal(place.toPoint()));
    QCoreApplication::sendEvent(&widget, &event);
    QMouseEvent moved(QEvent::MouseMove, place, QCursor::pos(), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &moved);
}

void sendMouse(QWidget &widget, QEvent::Type type, QPointF place)
{
    QMouseEvent event(
        type, place, QCursor::pos(), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

quint64 heapAllocations()
{
    return allocations.load(std::memory_order_relaxed);
}

double heapInUse()
{
    const auto info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}
