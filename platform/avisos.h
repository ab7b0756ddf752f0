#pragma once
// What the program tells a screen reader besides what it reads of the
// controls: the outcome of a key, the language just chosen.

#include <QObject>
#include <QPointer>
#include <QString>

class QAccessibleInterface;
class QStatusBar;
class QWidget;

// The accessibility factory that gives the messages below the notification
// role: screen readers speak an object of that role as it appears.
QAccessibleInterface *RolDeAviso(const QString &clase, QObject *objeto);

// Says a message to a screen reader, once: each message is a new
// notification in the window, which screen readers speak, and show on a
// braille display, as it appears; the one before goes. A message for a
// window that is not active waits until it is, so that it follows what the
// screen reader says of the window itself.
class Avisador : public QObject {
  public:
    explicit Avisador(QWidget *ventana);
    void Avisa(const QString &mensaje);

  protected:
    bool eventFilter(QObject *o, QEvent *e) override;

  private:
    void Muestra();
    QWidget *ventana_;
    QStatusBar *barra_ = nullptr;
    QString pendiente_;
    QPointer<QWidget> anterior_;
};
