// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The board area: the board picture, the 49 drop targets, the 22 piece images and the four prompts.
// It turns mouse presses and drags, and the same gestures made with the keyboard cursor, into two
// signals; whether a move is legal is the game's business.
// The theme says where each point lies on its board picture of 400 x 400; this widget places pieces and
// targets there in twips (1/15 of a picture unit, so that every point is a whole number), shows the
// board as the largest square that fits, centred, and scales pieces, targets and prompts with it.
#include <QLabel>
#include <QPixmap>
#include <QPoint>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "board/stellung.h"
#include "game/ansicht.h"
#include "ui/svg_bild.h"
#include "ui/thema.h"

namespace fuh {

class BrettFlaeche : public QWidget {
    Q_OBJECT
  public:
    static constexpr int kSeite = kBrettseite;              // the board picture at scale 1, logical pixels
    static constexpr bool istFuchs(int k) { return k < 2; } // pieces 0 and 1 are the foxes
    // Whether piece k is shown where the game has it on `feld`: a taken hen has no square any more, a
    // parked fox waits beside the cross.
    static constexpr bool gezeigt(int k, int feld) { return istFuchs(k) || feld != kParkfeld; }

    // `ziehbar` tells whether a left press may start a drag now.
    explicit BrettFlaeche(std::function<bool()> ziehbar, QWidget* parent = nullptr);

    SvgBild* figur(int k) const { return figuren_[k]; }
    // The look of board, pieces, marks and prompts; applies at once.
    void themaSetzen(const Thema& thema);
    const Thema& thema() const { return thema_; }
    QLabel* hinweisLabel(Hinweis h) const { return hinweise_[static_cast<int>(h)]; }

    // Where the board is drawn, and logical pixels per pixel of the game's 400 x 400 board.
    QRect brettRechteck() const { return {ursprung_, QSize(seite_, seite_)}; }
    double skala() const { return seite_ / double{kSeite}; }
    // The widget point of a point in twips.
    QPointF abbild(double left, double top) const;
    // Where the target of a square is drawn now.
    QRect feldRechteck(int feld) const;

    // Piece k stands on square `feld`. A step of a glide from `von` to `nach` (step `schritt` of
    // `schritte`) leaves the points' names as they were until the move is marked (zugMarkieren,
    // markierungLoeschen) or another piece is set.
    void figurSetzen(int k, int feld);
    void figurGleiten(int k, int von, int nach, int schritt, int schritte);
    void figurZeigen(int k, bool sichtbar);
    // Every piece where `s` has it, a hen without a square hidden.
    void aufstellen(const Stellung& s);
    void hinweisZeigen(Hinweis h, bool sichtbar);

    // The last computer move: its first origin and its last destination (squares) stay marked.
    void zugMarkieren(int von, int nach);
    void markierungLoeschen();
    std::optional<std::pair<int, int>> markierung() const { return markierung_; }

    // A hint: the squares of a suggested move (origin, then each landing square), until cleared.
    void tippZeigen(std::vector<int> felder);
    void tippLoeschen();
    const std::vector<int>& tipp() const { return tipp_; }

    // The topmost visible piece image under `p`, or -1.
    int figurAn(QPoint p) const;
    // The drop target under `p`, or -1.
    int platzAn(QPoint p) const;

    // The piece image standing on square `feld`, or -1.
    int figurAuf(int feld) const;
    // The same as screen readers know it: not changed by a slide until the move has been marked.
    int angesagteFigur(int feld) const { return inhalt_[feld]; }

    // Where a lifted piece may go: `ziele` gives the squares for piece k, asked each time a piece is
    // lifted; they stay marked (and are named "erlaubt" to screen readers) until it is put down.
    void zieleGeben(std::function<std::vector<int>(int k)> ziele) { zielgeber_ = std::move(ziele); }
    const std::vector<int>& ziele() const { return ziele_; }

    bool ziehtGerade() const { return gezogen_ >= 0; }
    void ziehenAbbrechen();

    // The keyboard cursor: always on a point of the cross, the centre at first. A piece picked up with
    // the keyboard travels with it until it is dropped or put back.
    static constexpr int kMitte = 24;
    int cursor() const { return cursor_; }
    int getragenVon() const { return getragenVon_; } // -1 when the keyboard carries no piece
    void cursorSetzen(int feld);

    // How a person's chain of jumps ends, keys included: the jump prompt's tip, said with the prompt.
    static QString sprungTasten();

    QSize minimumSizeHint() const override { return {kSeite, kSeite}; }
    QSize sizeHint() const override { return {kSeite, kSeite}; }

  signals:
    void figurGedrueckt(int k, Maustaste taste);
    void abgelegt(int t, int k);                  // piece k dropped on the target of square t
    void figurVersetzt(int k, int left, int top); // the image of piece k now stands there (twips)
    void aufgenommen(int k, int feld);            // the keyboard picked up piece k from square feld

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    static constexpr int kTwipsProPixel = 15;
    // The top left corner of the image of a piece standing on `feld`, in twips; a piece's side in twips.
    QPoint ecke(int feld) const;
    int figurseite() const;
    QRect figurRechteck(int k) const;
    QRect bildRechteck(QPoint twips) const; // an image whose top left corner stands there
    QRect getragenRechteck() const;         // a piece carried by the keyboard, lifted off the cursor
    QPoint mitte(int feld) const;           // widget point at the centre of a square's target
    // The prompts (brett_hinweise.cpp).
    void hinweiseAnlegen();
    void hinweiseAnordnen();
    void zeigerSetzen(QPoint p);
    // The floating copy of piece k, shown lifted while it is dragged or carried by the keyboard.
    void anheben(int k, QPoint lage);
    // The one way a drop reaches the game: only onto a target that no piece image covers.
    void ablegen(int k, QPoint p);
    void cursorZeichnen(QPainter& painter) const;
    // The legal targets of the lifted piece (brett_ziele.cpp).
    void zieleSetzen(std::vector<int> ziele);
    void zieleZeichnen(QPainter& painter) const;
    // The keyboard's gestures on the cursor's point.
    void aufnehmenOderAblegen();
    void rechtsDruecken();
    // Screen readers hear of points whose piece changed.
    void inhaltAbgleichen();

    std::function<bool()> ziehbar_;
    Thema thema_ = fuh::thema(QLatin1String(kThemaStandard));
    std::array<SvgBild*, kFiguren> figuren_{};
    std::array<QPoint, kFiguren> lagen_{}; // the images' positions in twips
    std::array<int, kFiguren> stand_{};    // the square each piece stands on, -1 while it glides
    std::array<QLabel*, 4> hinweise_{};
    int seite_ = kSeite;
    QPoint ursprung_;
    QPixmap brett_; // the board picture at its current size
    std::optional<std::pair<int, int>> markierung_;
    std::vector<int> tipp_;
    std::function<std::vector<int>(int)> zielgeber_;
    std::vector<int> ziele_;
    SvgBild* schwebend_ = nullptr; // the copy that follows the cursor during a drag
    int gezogen_ = -1;
    QPoint griff_;         // cursor offset inside the dragged image
    int getragenVon_ = -1; // the point a piece carried by the keyboard cursor was picked up from
    int cursor_ = kMitte;
    std::array<int, kFelder> inhalt_{}; // the piece screen readers know on each point, or -1
};

} // namespace fuh
