// Random sessions: a seeded stream of everything a player can do, through the
// real windows, with the program's rules checked after every action; the
// thousands of windows opened and closed on the way must leave none behind
// (and LeakSanitizer, in the sanitizer build, no memory).
#include "apoyo_ui.h"
#include "estado.h"
#include "idioma.h"

#include <random>

namespace {

// The game's own random choices, from a seeded stream.
class AzarSemilla final : public FuenteAzar {
  public:
    explicit AzarSemilla(unsigned semilla) : g_(semilla) { UsaFuenteAzar(this); }
    ~AzarSemilla() override { UsaFuenteAzar(nullptr); }
    float Rnd() override { return std::uniform_real_distribution<float>(0.0f, 1.0f)(g_); }

  private:
    std::mt19937 g_;
};

class SesionAleatoria {
  public:
    explicit SesionAleatoria(unsigned semilla) : g_(semilla * 7919u + 1) {}

    void Corre(int acciones)
    {
        Ejecuta({"start"}, Dado(2));
        for (int i = 0; i < acciones && !::testing::Test::HasFailure(); ++i) {
            Ejecuta(Accion(), Dado(2));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            Verifica();
            if (::testing::Test::HasFailure())
                ADD_FAILURE() << "at action " << i;
        }
        EXPECT_GT(mensajes_, 10); // the stream reached every part of the program
        EXPECT_GT(finales_, acciones / 100);
    }

  private:
    int Dado(int n) { return std::uniform_int_distribution<int>(0, n - 1)(g_); }
    QString Una(const QStringList &opciones) { return opciones[Dado(int(opciones.size()))]; }

    // A name of 0 to 20 characters: letters, accented and other scripts, spaces.
    QString Nombre()
    {
        static const QString letras = QStringLiteral("abcAnaBeto  áéñÑüΩЖ中 ");
        QString s;
        for (int n = Dado(21); n > 0; --n)
            s += letras[Dado(int(letras.size()))];
        return s;
    }

    // One action of the player's, as a script.
    QStringList Accion()
    {
        ui::VentanaPrincipal &f = Form1();
        const int d = Dado(100);
        if (d < 50)
            return {QStringLiteral("sq %1").arg(Dado(9))};
        if (d < 58)
            return {"new"};
        if (d < 64)
            return QStringList{"menu 1vs2"} + (f.mnu1vs2->isChecked() ? QStringList() : Nombres());
        if (d < 70)
            return {"menu vspc"};
        if (d < 76) {
            QStringList g{"menu level"};
            for (int i = Dado(4); i > 0 && f.mnuNivel->isEnabled(); --i)
                g << QStringLiteral(" opt %1").arg(Dado(3));
            return f.mnuNivel->isEnabled() ? g << Una({" ok", " close", " key Escape"}) : g;
        }
        if (d < 82)
            return QStringList{"menu names"} +
                   (f.mnuoponentes->isEnabled() ? Nombres() : QStringList());
        if (d < 91) {
            QStringList g{"menu language"};
            for (int i = Dado(3); i > 0; --i)
                g << Una({" opt 0", " opt 1"});
            return g << Una({" ok", " cancel", " close", " key Escape"});
        }
        if (d < 99)
            return {"menu about", Una({" ok", " close", " key Escape"})};
        nombresDados_ = false; // a new run starts without names
        return {"quit menu exit", "start"};
    }

    // Up to three tries at two names, each answered as the dialog requires.
    QStringList Nombres()
    {
        QStringList g;
        for (int intento = 0; intento < 3; ++intento) {
            const QString a = Nombre(), b = Dado(4) ? Nombre() : a;
            g << " clear 0"
              << " clear 1"
              << " type 0 |" + a + "|"
              << " type 1 |" + b + "|";
            const QString ta = a.left(15), tb = b.left(15);
            const int fin = Dado(5);
            if (fin >= 3) {
                nombresDados_ |= fin == 3;
                return g << (fin == 3 ? " cancel" : Una({" close", " key Escape"}));
            }
            const bool falta = Trim(ta).isEmpty() || Trim(tb).isEmpty();
            if (falta || ta == tb) {
                g << (falta ? " message msgFalta" : " message msgIguales");
                ++mensajes_;
            }
            g << Una({" ok", " key Return box 0", " key Enter box 1"});
            if (!falta && ta != tb) {
                nombresDados_ = true;
                return g;
            }
        }
        nombresDados_ = true;
        return g << " cancel";
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
        ASSERT_TRUE(nivel <= 1 && oponentes <= 1);
        ASSERT_EQ(QApplication::topLevelWidgets().size(), 2 + nivel + oponentes);
        ui::VentanaPrincipal &f = Form1();
        for (int k = 0; k < 9; ++k) {
            const Integer v = Tablero(k % 3, k / 3);
            ASSERT_EQ(f.cmdtir[k]->text(), v == kEquis ? "X" : v == kCero ? "0" : "") << k;
        }
        ASSERT_EQ(Jugando, !f.cmdnuevo->isEnabled());
        ASSERT_EQ(Jugando, !HayGanador(Tablero) && !TableroLleno(Tablero));
        const bool contraPC = Modo == kContraPC;
        ASSERT_TRUE(contraPC || Modo == kDosJugadores);
        ASSERT_NE(f.mnuvspc->isChecked(), f.mnu1vs2->isChecked());
        ASSERT_EQ(f.mnuvspc->isChecked(), contraPC);
        ASSERT_EQ(f.mnuNivel->isEnabled(), contraPC);
        ASSERT_EQ(f.mnuoponentes->isEnabled(), !contraPC);
        ASSERT_TRUE(Nivel >= 1 && Nivel <= 3);
        ASSERT_EQ(f.windowTitle(), strTitulo + (Idioma == kIngles ? " (Level " : " (Nivel ") +
                                       QString::number(Nivel) + ")");
        for (const std::string *j : {&Jugador1, &Jugador2}) {
            const QString nombre = QString::fromStdString(*j);
            ASSERT_EQ(nombre, Trim(nombre));
            ASSERT_EQ(nombre.isEmpty(), !nombresDados_);
        }
    }

    std::mt19937 g_;
    bool nombresDados_ = false;
    bool jugaba_ = false;
    int mensajes_ = 0;
    int finales_ = 0;
};

class Aleatorio : public Programa, public ::testing::WithParamInterface<unsigned> {};

} // namespace

TEST_P(Aleatorio, TenThousandActions)
{
    AzarSemilla azar(GetParam());
    SesionAleatoria(GetParam()).Corre(10000);
}

INSTANTIATE_TEST_SUITE_P(Semillas, Aleatorio, ::testing::Values(1u, 2u, 3u));
