#include "apoyo_ui.h"

void ReiniciaPrograma()
{
    // Deleting one window may take others with it: ask again after each.
    while (!QApplication::topLevelWidgets().isEmpty())
        delete QApplication::topLevelWidgets().first();
    // A turn of the loop consumes pending deletions and quit requests.
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    // The game state as before Main: zero, False or empty.
    LimpiaTablero(Tablero);
    Jugando = DesdeMenu = false;
    Nivel = Modo = Turno = Idioma = 0;
    Jugador1 = Jugador2 = "";
    UsaFuenteAzar(nullptr);
    static const QPalette tema = QApplication::palette();
    QApplication::setPalette(tema);
}

QStringList Datos(const std::string &clave, const std::string &modo)
{
    static const std::vector<std::string> filas = Filas("textos.txt");
    const std::string prefijo = clave + ' ' + modo + ' ';
    QStringList valores;
    for (const std::string &linea : filas)
        if (linea.rfind(prefijo, 0) == 0)
            valores << QString::fromStdString(linea.substr(prefijo.size()));
    return valores;
}

QWidget *Delante()
{
    if (QWidget *m = QApplication::activeModalWidget())
        return m;
    return frmSeleccion.Existe() ? static_cast<QWidget *>(&frmSeleccion()) : &Form1();
}

void Clic(QAbstractButton *b)
{
    // An option button takes clicks on its circle and caption only.
    const bool opcion = qobject_cast<QRadioButton *>(b) != nullptr;
    QTest::mouseClick(b, Qt::LeftButton, {}, opcion ? QPoint(6, b->height() / 2) : QPoint());
}

QAccessibleInterface *Accesible(QObject *o)
{
    auto *item = qobject_cast<QAction *>(o);
    if (!item) // a menu's items are its interface's children
        return QAccessible::queryAccessibleInterface(o);
    auto *menu = qobject_cast<QMenu *>(item->parent());
    return Accesible(menu)->child(int(menu->actions().indexOf(item)));
}

QColor ColorFondo(QWidget *w)
{
    if (auto *dialogo = dynamic_cast<Dialogo *>(w))
        return dialogo->Fondo();
    return w->autoFillBackground() ? w->palette().color(QPalette::Window) : QColor();
}

// What the player sees of one control: its text, the selected option marked
// "(*)", a text box's limit, a menu with its items ("[x]" checked, "[-]"
// disabled); "_" for nothing. Empty when it is no control of those kinds.
// A raised bevel with its width, a label's margin, and the colour of a
// background the widget paints itself.
QString Fondo(QWidget *w)
{
    auto *marco = qobject_cast<QFrame *>(w);
    const bool bisel = marco && marco->frameStyle() == (QFrame::Panel | QFrame::Raised);
    auto *etiqueta = qobject_cast<QLabel *>(w);
    const int margen = etiqueta ? etiqueta->margin() : 0;
    const QColor color = ColorFondo(w);
    return (bisel ? QStringLiteral(" raised %1").arg(marco->lineWidth()) : QString()) +
           (margen ? QStringLiteral(" margin %1").arg(margen) : QString()) +
           (color.isValid() ? " " + color.name() : QString());
}

QString Describe(QWidget *w)
{
    QString s;
    if (auto *m = qobject_cast<QMenu *>(w)) {
        s = m->title();
        for (QAction *a : m->actions())
            s += " | " + (a->isSeparator() ? "-" : a->text()) +
                 (a->isCheckable() ? a->isChecked() ? " [x]" : " [ ]" : "") +
                 (a->isEnabled() ? "" : " [-]");
    } else if (auto *r = qobject_cast<QRadioButton *>(w)) {
        s = r->text() + (r->isChecked() ? " (*)" : "");
    } else if (auto *b = qobject_cast<QPushButton *>(w)) {
        s = b->text() + (b->isEnabled() ? "" : " [-]");
    } else if (auto *l = qobject_cast<QLabel *>(w)) {
        s = QString(l->text()).replace("\n", "\\n");
    } else if (auto *e = qobject_cast<QLineEdit *>(w)) {
        s = QStringLiteral("[box]") + e->text();
    } else if (qobject_cast<QFrame *>(w)) {
        s = QStringLiteral("[panel]");
    } else {
        return {};
    }
    return (s.isEmpty() ? QStringLiteral("_") : s) + Fondo(w);
}

// The title, then every control in the order it was built, with its place
// in pixels when `lugar`.
QStringList Textos(QWidget *v, bool lugar)
{
    const bool fija = v->minimumSize() == v->maximumSize();
    auto *principal = qobject_cast<QMainWindow *>(v);
    const QSize cliente = principal ? principal->centralWidget()->size() : v->size();
    QStringList t{v->windowTitle() + Fondo(v) + (fija ? QStringLiteral(" fixed") : QString()) +
                  (lugar ? QString::asprintf(" %dx%d", cliente.width(), cliente.height()) : "")};
    for (QWidget *w : v->findChildren<QWidget *>()) {
        if (w->size().isEmpty()) // a screen reader's notification: nothing to see
            continue;
        QString s = Describe(w);
        if (lugar && !s.isEmpty() && !qobject_cast<QMenu *>(w)) {
            const QFont f = w->font();
            s += QString::asprintf(" %gpt%s @%d,%d,%d,%d", f.pointSizeF(), f.bold() ? " bold" : "",
                                   w->x(), w->y(), w->width(), w->height());
        }
        if (!s.isEmpty())
            t << s;
    }
    return t;
}

int main(int argc, char **argv)
{
#ifndef Q_OS_WIN
    // Headless unless told otherwise; test discovery at build time has no
    // display. Windows always has its own.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    QApplication app(argc, argv);
    ProtegeModalidad();
    IdentificaPrograma();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
