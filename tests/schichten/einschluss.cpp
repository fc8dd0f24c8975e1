// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

// Compiled by the layer tests with KOPF set to one header.
#include KOPF
