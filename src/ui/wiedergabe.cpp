// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/wiedergabe.h"

#include <algorithm>
#include <utility>

namespace fuh {

namespace {
constexpr int kTaktMs = 10; // a slide is redrawn about a hundred times a second
} // namespace

Wiedergabe::Wiedergabe(std::function<void(const Ereignis&)> zeigen, QObject* parent)
    : QObject(parent), zeigen_(std::move(zeigen)) {
    takt_.setInterval(kTaktMs);
    takt_.setTimerType(Qt::PreciseTimer);
    connect(&takt_, &QTimer::timeout, this, &Wiedergabe::abspielen);
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, &Wiedergabe::abspielen);
    anstoss_.setSingleShot(true);
    anstoss_.setInterval(0);
    connect(&anstoss_, &QTimer::timeout, this, &Wiedergabe::abspielen);
}

void Wiedergabe::anhaengen(Ereignis::Art art, int a, int b, int c, bool ja, Text text) {
    anhaengen(Ereignis{art, a, b, c, ja, std::move(text)});
}

void Wiedergabe::anhaengen(Ereignis e) {
    schlange_.push_back(std::move(e));
    if (!aktiv_ && !takt_.isActive() && !pause_.isActive()) anstoss_.start();
}

void Wiedergabe::setTempo(Tempo t) {
    tempo_ = t;
    if (gleitdauer() == 0) gleitLaenge_ = 0; // the rest of a running slide is shown at once
}

int Wiedergabe::gleitdauer() const {
    switch (tempo_) {
    case Tempo::sofort:
        return 0;
    case Tempo::schnell:
        return 150;
    case Tempo::normal:
        return 300;
    case Tempo::langsam:
        return 700;
    }
    return 300; // not reached: every pace is named above
}

void Wiedergabe::abspielen() {
    // A message being shown runs its own event loop: the timers must not show what comes after it.
    if (aktiv_ || angehalten_ || pause_.isActive()) return;
    anstoss_.stop();
    aktiv_ = true;
    bool wartet = false;
    while (!schlange_.empty() && !wartet) {
        if (gleitdauer() > 0 && (gleitLaenge_ > 0 || schlange_.front().art == Ereignis::Art::gleitet)) {
            switch (gleitenFortsetzen()) {
            case Gleiten::wartet:
                wartet = true;
                break;
            case Gleiten::fertig:
                pause_.start(gleitdauer() / 3);
                wartet = true;
                break;
            case Gleiten::abgebrochen:
                break; // a new game began meanwhile: its reports follow
            }
            continue;
        }
        const Ereignis e = std::move(schlange_.front());
        schlange_.pop_front();
        zeigen_(e);
    }
    aktiv_ = false;
    if (wartet && gleitLaenge_ > 0) {
        if (!takt_.isActive()) takt_.start();
        return;
    }
    takt_.stop();
    if (!wartet) emit fertig();
}

Wiedergabe::Gleiten Wiedergabe::gleitenFortsetzen() {
    if (gleitLaenge_ == 0) {
        // A slide is the run of steps of one piece at the head of the queue.
        const int k = schlange_.front().a;
        const auto ende = std::find_if(schlange_.begin(), schlange_.end(), [k](const Ereignis& e) {
            return e.art != Ereignis::Art::gleitet || e.a != k;
        });
        gleitLaenge_ = static_cast<int>(ende - schlange_.begin());
        gleitGezeigt_ = 0;
        uhr_.start();
    }
    // The first step shows at once, the last when the slide's time is up.
    const qint64 faellig = std::min<qint64>(gleitLaenge_, 1 + uhr_.elapsed() * gleitLaenge_ / gleitdauer());
    while (gleitGezeigt_ < faellig) {
        const Ereignis e = std::move(schlange_.front());
        schlange_.pop_front();
        ++gleitGezeigt_;
        zeigen_(e);
        if (gleitLaenge_ == 0) return Gleiten::abgebrochen;
    }
    if (gleitGezeigt_ < gleitLaenge_) return Gleiten::wartet;
    gleitLaenge_ = 0;
    return Gleiten::fertig;
}

void Wiedergabe::abbrechen(const std::function<bool(const Ereignis&)>& behalten) {
    takt_.stop();
    pause_.stop();
    anstoss_.stop();
    gleitLaenge_ = 0;
    std::deque<Ereignis> rest;
    rest.swap(schlange_);
    for (const Ereignis& e : rest) {
        switch (e.art) {
        case Ereignis::Art::meldung:
        case Ereignis::Art::speicherfehler:
        case Ereignis::Art::oeffnen:
        case Ereignis::Art::zugbegrenzung:
            if (behalten(e)) zeigen_(e);
            break;
        default:
            zeigen_(e);
        }
    }
}

} // namespace fuh
