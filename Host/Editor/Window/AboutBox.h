// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QWidget;

/// Says what the program is, and of which edition: the data of customisation of its language.
void ShowAbout(QWidget* window);
