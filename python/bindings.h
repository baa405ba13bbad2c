// SPDX-License-Identifier: MIT
#pragma once

// Shiboken reads the classes that ours refer to as well.
#include <QtWidgets>

#include <OlvSystemInfo/OlvSystemInfo>
#include <OlvWidgets/OlvWidgets>
