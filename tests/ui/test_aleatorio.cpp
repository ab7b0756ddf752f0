// Random sessions: a seeded player does anything the window in front allows,
// message boxes and the exit included, through the real windows; and, as an
// assistive technology may, presses, toggles, focuses or writes into any
// control or menu item of any window, behind dialogs included, where only
// the window in front may act. Whenever the main window is in front, the
// panel reads clean and the names are sane; and the thousands of windows
// opened and closed on the way must leave none behind (and LeakSanitizer, in
// the sanitizer build, no memory).
#include "apoyo_ui.h"

#include <algorithm>
#include <random>

namespace {

class Jugador {
  public:
    explicit Jugador(unsigned semilla) : g_(semilla) {}

    void Corre(int acciones)
    {
        restantes_ = acciones;
        QTimer::singleShot(0, &vida_, [this] { Actua(); });
        while (restantes_ > 0 && !::testing::Test::HasFailure()) {
            Main();
            QCoreApplication::exec(); // until the player ends the program
            EXPECT_FALSE(Form1.Existe() && Form1().isVisible());
        }
        EXPECT_GT(mensajes_, 10); // the player reached every part of the program
        EXPECT_GT(finales_, acciones / 200);
        EXPECT_GT(rechazadas_, acciones / 50);
    }

  private:
    int Dado(int n) { return std::uniform_int_distribution<int>(0, n - 1)(g_); }
    template <class T> T Una(const QList<T> &lista) { return lista[Dado(int(lista.size()))]; }

    // One action on the window in front; the next is queued first, so that
    // it runs inside a dialog this one opens.
    void Actua()
    {
        QWidget *modal = QApplication::activeModalWidget();
        const bool principal = !modal && !frmSeleccion.Existe();
        if (principal && !Form1.Existe()) // the program is ending: wait for the next start
            return QTimer::singleShot(0, &vida_, [this] { Actua(); });
        if (principal) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            Verifica();
        }
        const bool agotado = --restantes_ <= 0;
        if (::testing::Test::HasFailure())
            return QCoreApplication::exit(1);
        // After the last action, the windows in front close until the program has ended.
        QTimer::singleShot(0, &vida_, [this] { Actua(); });
        mensajes_ += qobject_cast<QMessageBox *>(modal) != nullptr; // the opponents' refusal
        if (Dado(5) == 0)
            return Asiste();
        QWidget *v = Delante();
        const QList<QLineEdit *> cajas = v->findChildren<QLineEdit *>();
        for (QLineEdit *caja : cajas)
            ASSERT_TRUE(NombreSano(caja->text())) << caja->text().toStdString();
        if (agotado || Dado(100) == 0) // the title bar's close; the main window's ends the program
            return v->close(), void();
        const int d = Dado(100);
        if (principal && d >= 60)
            return Una(Form1().mnuOpciones->actions())->trigger();
        if (d < 40) {
            QWidget *w = v->focusWidget() ? v->focusWidget() : v;
            return QTest::keyClick(
                w, Una(QList{Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Up}));
        }
        Clic(Una(v->findChildren<QAbstractButton *>()));
    }

    // An action through the accessibility interface on any control, window
    // or menu item; one outside the window in front changes nothing.
    void Asiste()
    {
        QList<QObject *> objetos;
        // Half of them in the window in front, half anywhere.
        const QWidgetList ventanas =
            Dado(2) ? QWidgetList{Delante()} : QApplication::topLevelWidgets();
        for (QWidget *v : ventanas) {
            objetos << v;
            for (QWidget *w : v->findChildren<QWidget *>())
                objetos << w;
        }
        if (Form1.Existe() && ventanas.contains(&Form1()))
            for (QAction *a : Form1().mnuOpciones->actions())
                objetos << a;
        QObject *o = Una(objetos);
        QAccessibleInterface *i = Accesible(o);
        if (!i)
            return;
        bool fuera = true;
        for (QObject *p = o; p; p = p->parent())
            fuera &= p != Delante();
        const QString antes = Estado();
        auto *texto = i->editableTextInterface();
        QAccessibleTextInterface *lectura = i->textInterface();
        QStringList acciones = i->actionInterface()->actionNames();
        acciones.removeAll(QAccessibleActionInterface::showMenuAction()); // no popups
        if (texto && Dado(2)) {
            texto->replaceText(0, lectura->characterCount(), Una(trozos_));
        } else if (lectura && Dado(2)) { // the caret or a selection moved
            const int n = lectura->characterCount(), desde = Dado(n + 1), hasta = Dado(n + 1);
            if (const int como = Dado(3); como == 0)
                lectura->setCursorPosition(desde);
            else if (como == 1)
                lectura->setSelection(0, desde, hasta);
            else
                lectura->addSelection(desde, hasta);
        } else if (!acciones.isEmpty()) {
            i->actionInterface()->doAction(Una(acciones));
        }
        if (fuera) {
            ++rechazadas_;
            ASSERT_EQ(Estado().toStdString(), antes.toStdString())
                << Describe(qobject_cast<QWidget *>(o)).toStdString();
        }
    }

    // All a player or a program could tell of the state: the game's, and
    // every window's texts, states, focus and pressed buttons.
    static QString Estado()
    {
        QString s =
            QString::fromStdString(ComoTexto(Tablero) + Jugador1 + '|' + Jugador2) +
            QString::asprintf(" %d%d%d%d%d%d", Jugando, Nivel, Modo, Turno, Idioma, DesdeMenu);
        for (QWidget *v : QApplication::topLevelWidgets()) {
            s += QString::asprintf("\n%p %d %p ", static_cast<void *>(v), v->isVisible(),
                                   static_cast<void *>(v->focusWidget())) +
                 Textos(v, false).join('|');
            for (QAbstractButton *b : v->findChildren<QAbstractButton *>())
                s += b->isDown() ? 'v' : '^';
            for (QLineEdit *caja : v->findChildren<QLineEdit *>())
                s += QStringLiteral(" %1:%2").arg(caja->cursorPosition()).arg(caja->selectedText());
        }
        return s;
    }

    // One line, none of its characters a control. (The length limit is the
    // scripts' to check, by typing and writing past it.)
    static bool NombreSano(const QString &nombre)
    {
        return nombre.isValidUtf16() && std::none_of(nombre.begin(), nombre.end(), [](QChar c) {
                   return c.category() == QChar::Other_Control;
               });
    }

    void Verifica()
    {
        finales_ += jugaba_ && !Jugando;
        jugaba_ = Jugando;
        // No window left open or left behind: the main window with its menu,
        // and the level and opponents dialogs, hidden, at most once each.
        int nivel = 0, oponentes = 0;
        for (QWidget *w : QApplication::topLevelWidgets()) {
            ASSERT_FALSE(w->isVisible() && w != &Form1()) << qPrintable(w->windowTitle());
            nivel += dynamic_cast<ui::DialogoNivel *>(w) != nullptr;
            oponentes += dynamic_cast<ui::DialogoOponentes *>(w) != nullptr;
        }
        ASSERT_TRUE(nivel <= 1 && oponentes <= 1 &&
                    QApplication::topLevelWidgets().size() == 2 + nivel + oponentes);
        // The panel reads as its caption, without what isolates a name (the
        // last four of Unicode's direction classes).
        ASSERT_EQ(Accesible(Form1().Panel)->text(QAccessible::Name),
                  QString(Form1().Panel->text()).removeIf([](QChar c) {
                      return c.direction() >= QChar::DirLRI;
                  }));
        // Names come in pairs, trimmed, a clean line each.
        for (const std::string *j : {&Jugador1, &Jugador2}) {
            const QString nombre = QString::fromStdString(*j);
            ASSERT_TRUE(!nombre.startsWith(' ') && !nombre.endsWith(' ') && NombreSano(nombre) &&
                        j->empty() == Jugador1.empty())
                << *j;
        }
    }

    // Letters of several scripts, accents apart, emoji with joiners and skin
    // tones, right-to-left text and overrides, controls, line breaks, long text.
    const QStringList trozos_ =
        QStringLiteral("a|Ana| |  Beto "
                       "|ñ|Ω|Ж|中|e\u0301|\u2067Ana\u2069|\u0915\u094D\u200D\u0937|שלום|"
                       "\u202Eoveja|👍🏽|"
                       "👩‍👩‍👧|🇪🇸|"
                       "\t|\u0085|\x7f|Ana\nBeto|x\r\ny|zzzzzzzzzzzzzzzzzzzzzzzzz")
            .split('|');
    std::mt19937 g_;
    QObject vida_; // the queued actions die with the player
    int restantes_ = 0;
    bool jugaba_ = false;
    int mensajes_ = 0;
    int finales_ = 0;
    int rechazadas_ = 0;
};

class Aleatorio : public Programa, public ::testing::WithParamInterface<unsigned> {};

} // namespace

TEST_P(Aleatorio, TenThousandActions)
{
    // The game's own draws, from the same seed.
    std::mt19937 g(GetParam());
    std::vector<float> valores(100000);
    std::generate(valores.begin(), valores.end(),
                  [&] { return std::uniform_real_distribution<float>()(g); });
    AzarGuionado azar(valores);
    Jugador(GetParam()).Corre(10000);
    EXPECT_EQ(azar.excedidas, 0);
}

INSTANTIATE_TEST_SUITE_P(Semillas, Aleatorio, ::testing::Values(1u, 2u, 3u));
