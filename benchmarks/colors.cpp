// SPDX-License-Identifier: MIT
#include "groups.h"
#include "support.h"

#include <OlvWidgets/foundation.h>

#include <QColor>

namespace {

template <typename Step> void addColorBenchmark(const std::string &name, Step step)
{
    addBenchmark(name, [step](benchmark::State &state) {
        while (state.KeepRunning()) {
            benchmark::DoNotOptimize(step());
        }
    });
}

} // namespace

void addColors()
{
    const QString decimal = QStringLiteral("64,158,255");
    const QString hexadecimal = QStringLiteral("#409eff");
    const QColor color(64, 158, 255);

    addColorBenchmark("color-from-string/library",
                      [decimal] { return OlvColorFromString(decimal); });
    addColorBenchmark("color-from-string/qcolor", [hexadecimal] { return QColor(hexadecimal); });
    addColorBenchmark("color-to-string/library", [color] { return OlvColorToString(color); });
    addColorBenchmark("color-to-string/qcolor", [color] { return color.name(); });
    // the cost of allocating a new string of that length
    const int length = int(decimal.size());
    addColorBenchmark("color-to-string/empty-string",
                      [length] { return QString(length, Qt::Uninitialized); });
}
