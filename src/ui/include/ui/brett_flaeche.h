#pragma once
// The board area: the board picture, the 49 drop targets, the 22 piece images and the four prompts.
// It turns mouse presses and drags into two signals; whether a move is legal is the game's business.
#include <QLabel>
#include <QPoint>
#include <array>
#include <functional>

#include "board/stellung.h"
#include "game/ansicht.h"
#include "ui/svg_bild.h"

namespace fuh {

class BrettFlaeche : public SvgBild {
    Q_OBJECT
  public:
    static constexpr int kSeite = 400; // the board picture, logical pixels

    // `ziehbar` tells whether a left press may start a drag now.
    explicit BrettFlaeche(std::function<bool()> ziehbar, QWidget* parent = nullptr);

    SvgBild* figur(int k) const { return figuren_[k]; }
    QLabel* hinweisLabel(Hinweis h) const { return hinweise_[static_cast<int>(h)]; }

    // Positions in twips. Both repaint the affected area at once, without processing events.
    void figurSetzen(int k, int left, int top);
    void figurZeigen(int k, bool sichtbar);
    void hinweisZeigen(Hinweis h, bool sichtbar);

    // The topmost visible piece image under `p`, or -1.
    int figurAn(QPoint p) const;
    // The drop target under `p`, or -1.
    int platzAn(QPoint p) const;

    bool ziehtGerade() const { return gezogen_ >= 0; }
    void ziehenAbbrechen();

  signals:
    void figurGedrueckt(int k, Maustaste taste);
    void abgelegt(int t, int k); // piece k dropped on the target of square t

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void zeigerSetzen(QPoint p);

    std::function<bool()> ziehbar_;
    std::array<SvgBild*, kFiguren> figuren_{};
    std::array<QLabel*, 4> hinweise_{};
    SvgBild* schwebend_ = nullptr; // the copy that follows the cursor during a drag
    int gezogen_ = -1;
    QPoint griff_; // cursor offset inside the dragged image
};

} // namespace fuh
