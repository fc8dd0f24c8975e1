// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The fixed texts of a window in the player's language. Each is set translated at once and again by
// `erneuern`, which the window calls when the language changes. The sources are German texts marked
// with QT_TR_NOOP in the window's class, so they are looked up as its own tr() would.
#include <QString>
#include <functional>
#include <initializer_list>
#include <vector>

class QAction;
class QAbstractButton;
class QComboBox;
class QGroupBox;
class QLabel;
class QWidget;
struct QMetaObject;

namespace fuh {

class Beschriftung {
  public:
    explicit Beschriftung(const QMetaObject& fenster);
    Beschriftung(const Beschriftung&) = delete;
    Beschriftung& operator=(const Beschriftung&) = delete;

    void text(QLabel* l, const char* quelle);
    void text(QAbstractButton* b, const char* quelle);
    void text(QAction* a, const char* quelle);
    void titel(QGroupBox* g, const char* quelle);
    void titel(QWidget* fenster, const char* quelle);
    // What a screen reader says for `w`, built anew in each language: a value the eye places by its row
    // and column needs them said in words.
    void zugangsname(QWidget* w, std::function<QString()> bauen);
    // The entries of `c`, in this order.
    void eintraege(QComboBox* c, std::initializer_list<const char*> quellen);

    void erneuern() const;
    QString uebersetzt(const char* quelle) const;

  private:
    void merken(std::function<void()> setzen);

    const char* kontext_;
    std::vector<std::function<void()>> setzer_;
};

} // namespace fuh
