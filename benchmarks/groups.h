// SPDX-License-Identifier: MIT
#pragma once

/** Each registers the cases of the file that is named so. */
void addButtons();
void addColors();
void addTextFitting();
