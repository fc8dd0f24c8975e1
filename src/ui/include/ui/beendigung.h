// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A logout, the desktop session or `kill` may end the program with a signal instead of closing its
// window. SIGTERM, SIGHUP and SIGINT then end the event loop as "Beenden" does, so that a running game
// is kept for the next start.
#include <QCoreApplication>

namespace fuh {

// Once per process; later calls change nothing.
void signaleBeendenLassen(QCoreApplication& app);
// Whether such a signal came: it may end a dialog shown before the event loop runs.
bool beendenVerlangt();

} // namespace fuh
