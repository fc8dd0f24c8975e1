#pragma once
// A picture drawn from an SVG resource, rendered for the screen's device pixel ratio so it stays crisp.
#include <QString>
#include <QWidget>

namespace fuh {

class SvgBild : public QWidget {
    Q_OBJECT
  public:
    SvgBild(QString datei, QSize groesse, QWidget* parent = nullptr);

    const QString& datei() const { return datei_; }
    void setDeckkraft(qreal deckkraft);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString datei_;
    qreal deckkraft_ = 1.0;
};

} // namespace fuh
