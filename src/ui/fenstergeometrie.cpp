// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/fenstergeometrie.h"

#include <QDataStream>
#include <algorithm>

namespace fuh {

namespace {
constexpr quint32 kMagie = 0x1D9D0CB; // QWidget::saveGeometry's format, versions 1 to 3
constexpr qsizetype kHoechstLaenge = 256;
const QRect kOhneBildschirm(0, 0, 4096, 4096); // the largest window when no screen is known

// A rectangle as QDataStream stores it (left, top, right, bottom), with sizes that cannot overflow.
struct Rechteck {
    qint32 links = 0, oben = 0, rechts = 0, unten = 0;
    qint64 breite() const { return qint64(rechts) - links + 1; }
    qint64 hoehe() const { return qint64(unten) - oben + 1; }
    bool sinnvoll() const { return breite() > 0 && hoehe() > 0; }
    bool in(const QRect& r) const {
        return links >= r.left() && oben >= r.top() && rechts <= r.right() && unten <= r.bottom();
    }
};

QDataStream& operator>>(QDataStream& ein, Rechteck& r) {
    return ein >> r.links >> r.oben >> r.rechts >> r.unten;
}

// `r` shrunk to `frei` and moved onto it.
QRect einpassen(const Rechteck& r, const QRect& frei) {
    const int breite = static_cast<int>(std::min<qint64>(r.breite(), frei.width()));
    const int hoehe = static_cast<int>(std::min<qint64>(r.hoehe(), frei.height()));
    const int x = std::clamp<int>(r.links, frei.left(), frei.left() + frei.width() - breite);
    const int y = std::clamp<int>(r.oben, frei.top(), frei.top() + frei.height() - hoehe);
    return QRect(x, y, breite, hoehe);
}
} // namespace

std::optional<Fenstergeometrie> fenstergeometrie(const QByteArray& gespeichert, const QRect& frei) {
    if (gespeichert.isEmpty() || gespeichert.size() > kHoechstLaenge) return std::nullopt;
    QDataStream ein(gespeichert);
    ein.setVersion(QDataStream::Qt_4_0);
    quint32 magie = 0;
    quint16 haupt = 0, neben = 0;
    Rechteck rahmen, normal;
    qint32 bildschirm = 0;
    quint8 maximiert = 0, vollbild = 0;
    ein >> magie >> haupt >> neben >> rahmen >> normal >> bildschirm >> maximiert >> vollbild;
    if (ein.status() != QDataStream::Ok || magie != kMagie || haupt < 1 || haupt > 3 || !rahmen.sinnvoll() ||
        !normal.sinnvoll())
        return std::nullopt;
    const QRect bereich = frei.isValid() ? frei : kOhneBildschirm;
    Fenstergeometrie g;
    g.gespeichert = gespeichert;
    g.normal = einpassen(normal, bereich);
    g.maximiert = maximiert != 0;
    g.unveraendert = frei.isValid() && normal.in(bereich) && rahmen.in(bereich);
    return g;
}

QSize ersteFenstergroesse(int brettSeite, int zusatzHoehe, int statusBreite, const QRect& frei) {
    if (!frei.isValid()) return QSize(std::max(brettSeite, statusBreite), brettSeite + zusatzHoehe);
    const int seite = std::max(brettSeite, std::min(frei.width(), frei.height()) * 3 / 5);
    return QSize(std::max(seite, statusBreite), seite + zusatzHoehe).boundedTo(frei.size());
}

} // namespace fuh
