# SPDX-License-Identifier: MIT
"""The targets for the costs of the library. A row without a limit is for comparison only."""

from typing import NamedTuple, Optional


class Ratio(NamedTuple):
    """The library's cost, or another's, is at most `limit` times the contestant's."""

    case: str
    contestant: str
    limit: Optional[float]
    size: Optional[int] = None
    compared: str = "library"


class Slope(NamedTuple):
    """The library's cost grows with at most this power of the size."""

    case: str
    limit: Optional[float]


class Counter(NamedTuple):
    """What the library's benchmark counted, or a contestant's, is at most `limit`."""

    case: str
    counter: str
    unit: str
    limit: Optional[float]
    contestant: str = "library"


TARGETS = [
    Ratio("button-empty", "floor", 0.70),
    Ratio("button-empty", "sheet", 0.35),
    Ratio("button-empty", "fusion", 1.0),
    Ratio("button-empty", "floor", None, compared="undrawn"),
    Ratio("button-empty", "sheet", None, compared="undrawn"),
    *(
        target
        for state in ("rest", "hover", "pressed", "round")
        for target in (
            Ratio(f"button-{state}", "floor", 0.75),
            Ratio(f"button-{state}", "sheet", 0.55),
        )
    ),
    Ratio("button-new-caption", "sheet", None),
    Ratio("button-plain", "floor", 0.37),
    Ratio("button-shrunk", "floor", 1.05),
    Ratio("switch", "floor", 0.40),
    Ratio("switch", "floor", None, compared="undrawn"),
    Ratio("slider", "floor", 0.22),
    Ratio("slider", "fusion", 1.05),
    Ratio("slider", "sheet", None),
    Ratio("button-events", "fusion", 0.13),
    Ratio("button-events", "sheet", 0.06),
    Ratio("button-events-unpainted", "fusion", None),
    Ratio("button-events-unpainted", "sheet", None),
    Ratio("button-events-painted", "fusion", None),
    Ratio("button-events-painted", "sheet", None),
    Ratio("switch-ticks", "handwritten", 1.0),
    Ratio("switch-ticks", "two-widgets", 1.0),
    Ratio("switch-ticks", "animation", 0.35),
    Ratio("many-switches", "two-widgets", 1.0),
    Ratio("many-switches", "handwritten", None),
    Counter("many-switches", "busy", "processor milliseconds a second", 1000),
    Counter("many-switches", "delayed", "delayed ticks a second", 0),
    Ratio("slider-drag", "two-widgets", 1.1),
    Ratio("slider-drag", "fusion", None),
    Ratio("slider-drag", "sheet", None),
    Ratio("slider-drag-painted", "two-widgets", 0.7),
    Ratio("slider-drag-painted", "fusion", 1.05),
    Ratio("slider-drag-painted", "sheet", 0.4),
    Ratio("filter-listener", "override", 1.3),
    Ratio("filter-none", "override", 1.1),
    Counter("filter-listener", "allocations", "heap allocations a call", 0),
    Ratio("text-fitting", "measuring", 1.3, 5),
    Ratio("text-fitting", "measuring", 0.9, 20),
    Ratio("text-fitting", "measuring", 0.4, 80),
    Ratio("text-fitting", "measuring", 0.12, 320),
    Ratio("text-fitting", "measuring", 0.04, 1280),
    Slope("text-fitting", 0.8),
    Ratio("color-from-string", "qcolor", 2.5),
    Ratio("color-to-string", "qcolor", 0.5),
    Ratio("color-to-string", "empty-string", None),
    Ratio("many-buttons", "window-sheet", 0.45, 1000),
    Ratio("many-buttons", "window-sheet", 0.45, 10000),
    Ratio("many-buttons", "button-sheets", 0.3, 1000),
    Ratio("many-buttons", "button-sheets", 0.3, 10000),
    Slope("many-buttons", 1.1),
    Ratio("many-buttons-shared-captions", "window-sheet", 0.4, 1000),
    Ratio("many-buttons-shared-captions", "button-sheets", 0.25, 1000),
    Ratio("program-start", "sheet", None),
    Ratio("window-start", "sheet", 1.0),
    Ratio("window-widen", "fusion", None),
    Ratio("window-widen", "sheet", 1.0),
    Counter("window-idle", "wakeups", "wake-ups a minute", 0),
    Counter("pixel-caches", "bytes", "bytes when full", 3 * 1024 * 1024),
    Counter("pixel-caches", "again", "bytes that as many again add", 64 * 1024),
    Counter("button-heap", "bytes", "bytes a button", 2150),
    Ratio("button-heap", "window-sheet", 0.37),
    *(
        target
        for size in (1000, 3000, 10000)
        for target in (
            Ratio("grid-all-move", "moves", 1.1, size),
            Ratio("grid-all-move", "flow-layout", 0.7 if size > 1000 else None, size),
            Ratio("grid-all-move", "remembering", None, size),
            Ratio("grid-all-move", "flow-layout", None, size, compared="moves"),
        )
    ),
    *(
        Ratio("grid-none-moves", contestant, limit, size)
        for size in (1000, 3000, 10000)
        for contestant, limit in (("flow-layout", 0.35), ("remembering", None))
    ),
    *(
        target
        for size in (1000, 10000)
        for target in (
            Ratio("grid-add-list", "flow-layout", 1.2, size),
            Ratio("grid-add-list", "remembering", None, size),
            Ratio("grid-add-list", "moves", None, size),
            Ratio("grid-add-list", "flow-layout", None, size, compared="moves"),
        )
    ),
    *(
        Ratio("grid-scroll-step", contestant, limit, size, compared)
        for compared in ("library", "opaque")
        for size in (1000, 10000)
        for contestant, limit in (("scroll-area", None), ("laid-over", 1.1))
    ),
    *(Ratio("grid-scroll-step-drawn", "scroll-area", None, size) for size in (1000, 10000)),
    *(
        Ratio("grid-scroll-step-drawn", contestant, limit, size, compared="opaque")
        for size in (1000, 10000)
        for contestant, limit in (("scroll-area", None), ("laid-over", 1.1))
    ),
    Ratio("grid-filter", "bare", 1.5),
    Counter("grid-filter", "milliseconds", "milliseconds", 20),
    *(Ratio("grid-add-each", "naive", 0.6, size) for size in (1000, 3000, 10000)),
    *(
        Slope(f"grid-{name}", None)
        for name in ("all-move", "none-moves", "add-list", "scroll-step", "add-each")
    ),
    Counter("form-use", "bytes", "bytes a widget", 400),
    Counter("form-use", "bytes", "bytes a widget, sizes too", None, "unsized"),
    Counter("form-use", "timers", "timers", 0),
    Ratio("form-visits", "unsupported", 1.6),
    Ratio("form-keys", "fusion", None),
    Ratio("load", "empty", 2.6),
    Counter("load", "bytes", "bytes of heap", 5000),
    Counter("load", "bytes", "bytes, empty library", None, "empty"),
]

# A ratio is one of times unless the case is here: then it is one of what this counter counted.
COUNTED_CASES = {"button-heap": "bytes"}
