#include "avisos.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QLabel>
#include <QStatusBar>
#include <QWidget>

QAccessibleInterface *RolDeAviso(const QString &, QObject *objeto)
{
    return objeto->objectName() == QLatin1String("aviso")
               ? new QAccessibleWidget(static_cast<QWidget *>(objeto), QAccessible::Notification)
               : nullptr;
}

Avisador::Avisador(QWidget *ventana) : QObject(ventana), ventana_(ventana)
{
    ventana_->installEventFilter(this);
}

void Avisador::Avisa(const QString &mensaje)
{
    pendiente_ = mensaje;
    // After what the control that brought it says of itself (the option a
    // key selects, its new focus), which the toolkit tells first.
    if (ventana_->isActiveWindow())
        QMetaObject::invokeMethod(this, &Avisador::Muestra, Qt::QueuedConnection);
}

bool Avisador::eventFilter(QObject *, QEvent *e)
{
    // After the window's own activation has been told.
    if (e->type() == QEvent::WindowActivate && !pendiente_.isEmpty())
        QMetaObject::invokeMethod(this, &Avisador::Muestra, Qt::QueuedConnection);
    return false;
}

void Avisador::Muestra()
{
    if (pendiente_.isEmpty())
        return;
    if (!barra_) {
        // Made for the first message, not with the window: a status bar
        // measures the window's font, which the first window would
        // otherwise load before it could show.
        barra_ = new QStatusBar(ventana_);
        // The messages are notifications in a status bar that draws nothing.
        barra_->setGeometry(0, 0, 0, 0);
        barra_->show();
    }
    delete anterior_;
    // Named before it joins the window: from Qt 6.11 on, a widget made with
    // a parent has its accessibility interface (its role) made at once.
    anterior_ = new QWidget;
    anterior_->setObjectName(QStringLiteral("aviso"));
    anterior_->setParent(barra_);
    anterior_->resize(0, 0); // it draws nothing and takes no clicks
    // Screen readers speak a notification's name or the labels in it; a
    // braille display and the reader's message history take only the labels,
    // hidden ones too in a status bar. Hidden, the label is not read again
    // among the window's own texts.
    auto *texto = new QLabel(std::exchange(pendiente_, QString()), anterior_);
    texto->setTextFormat(Qt::PlainText);
    texto->resize(0, 0);
    texto->hide();
    anterior_->show();
}
