#include "modalidad.h"

#include "avisos.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace {

// An object's accessibility interface as Qt makes it, behind the guard: what
// assistive technology reads goes through unchanged; what it does happens
// only where the player can act.
class Vigilado : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    explicit Vigilado(QAccessibleInterface *interno) : i_(interno), objeto_(interno->object()) {}
    bool isValid() const override { return i_->isValid(); }
    QObject *object() const override { return objeto_; }
    QWindow *window() const override { return i_->window(); }
    // Qt answers these from its cache, where each object's guarded
    // interface is the one found.
    QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation r) const override
    {
        return i_->relations(r);
    }
    QAccessibleInterface *focusChild() const override { return i_->focusChild(); }
    QAccessibleInterface *childAt(int x, int y) const override { return i_->childAt(x, y); }
    QAccessibleInterface *parent() const override { return i_->parent(); }
    QAccessibleInterface *child(int n) const override { return i_->child(n); }
    int childCount() const override { return i_->childCount(); }
    int indexOfChild(const QAccessibleInterface *hijo) const override
    {
        auto *v = dynamic_cast<const Vigilado *>(hijo);
        return i_->indexOfChild(v ? v->i_ : hijo);
    }
    QString text(QAccessible::Text t) const override { return i_->text(t); }
    // A name box refuses for itself what it may not take now.
    void setText(QAccessible::Text t, const QString &texto) override { i_->setText(t, texto); }
    QRect rect() const override { return i_->rect(); }
    QAccessible::Role role() const override { return i_->role(); }
    QAccessible::State state() const override { return i_->state(); }
    QColor foregroundColor() const override { return i_->foregroundColor(); }
    QColor backgroundColor() const override { return i_->backgroundColor(); }

    // Text is read and edited through Qt's own interface: a name box itself
    // refuses an edit, a caret or a selection it may not take now.
    void *interface_cast(QAccessible::InterfaceType t) override
    {
        if (t == QAccessible::ActionInterface && i_->actionInterface())
            return static_cast<QAccessibleActionInterface *>(this);
        if (t == QAccessible::TextInterface || t == QAccessible::EditableTextInterface)
            return i_->interface_cast(t);
        return nullptr; // nothing else acts: the message box's picture, for one
    }

    // Actions.
    QStringList actionNames() const override { return i_->actionInterface()->actionNames(); }
    QStringList keyBindingsForAction(const QString &n) const override
    {
        return i_->actionInterface()->keyBindingsForAction(n);
    }
    void doAction(const QString &n) override
    {
        if (!Alcanzable(object()))
            return;
        // A press lands once the event loop is back, so that the caller has
        // its answer before a window the press opens waits for the player
        // (Qt's own press lands later still); it is weighed again then.
        if (auto *b = qobject_cast<QAbstractButton *>(object()); b && n == pressAction()) {
            if (b->isEnabled())
                QTimer::singleShot(0, b, [b] {
                    if (Alcanzable(b))
                        b->click();
                });
            return;
        }
        i_->actionInterface()->doAction(n);
    }

  private:
    QAccessibleInterface *i_;
    const QPointer<QObject> objeto_;
};

// Qt makes a menu's items, and the item in the bar that opens a menu,
// without asking the factories: each goes behind the guard as the menu's
// interface is made, before Qt hands it out. The cache answers with the
// last interface registered for an object.
void GuardaElementos(QAccessibleInterface *menu)
{
    QList<QAccessibleInterface *> elementos{menu->parent()};
    for (int n = 0; n < menu->childCount(); ++n)
        elementos << menu->child(n);
    for (QAccessibleInterface *e : elementos)
        if (e && e->object() && !dynamic_cast<Vigilado *>(e))
            QAccessible::registerAccessibleInterface(new Vigilado(e));
}

// Consulted first for every object: Qt's own interface, made by the other
// factories and cached, goes behind the guard, which Qt caches after it.
QAccessibleInterface *Fabrica(const QString &clase, QObject *objeto)
{
    static bool creando = false;
    if (creando || clase != QLatin1String(objeto->metaObject()->className()))
        return nullptr;
    creando = true;
    QAccessibleInterface *interno = QAccessible::queryAccessibleInterface(objeto);
    creando = false;
    if (!interno)
        return nullptr;
    if (interno->role() == QAccessible::PopupMenu || interno->role() == QAccessible::MenuBar)
        GuardaElementos(interno);
    return new Vigilado(interno);
}

} // namespace

void ProtegeModalidad()
{
    // The last installed is asked first: the guard, in front of the
    // notifications' role and of Qt's own interfaces.
    QAccessible::installFactory(RolDeAviso);
    QAccessible::installFactory(Fabrica);
}

bool Alcanzable(const QObject *objeto)
{
    const QWidget *modal = QApplication::activeModalWidget();
    const QObject *arriba = objeto;
    for (const QObject *o = objeto; o; o = o->parent()) {
        if (o == modal)
            return true;
        arriba = o;
    }
    auto *ventana = qobject_cast<const QWidget *>(arriba);
    return !modal && ventana && ventana->isVisible();
}
