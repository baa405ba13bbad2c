// SPDX-License-Identifier: MIT
#pragma once

/** Each registers the cases of the file of that name. */
void addButtons();
void addButtonEvents();
void addColors();
void addEventFilter();
void addFlowGrid();
void addForms();
void addGridFilter();
void addManyButtons();
void addSliderDrag();
void addSwitchAndSlider();
void addSwitchTicks();
void addTextFitting();
void addWindows();
