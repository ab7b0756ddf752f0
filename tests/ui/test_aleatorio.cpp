// Random sessions: a seeded stream of everything a player can do, through the
// real windows, with the program's rules checked after every action.
#include "apoyo_ui.h"
#include "estado.h"
#include "idioma.h"

#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace {

// The game's random choices, from a seeded stream.
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
    explicit SesionAleatoria(unsigned semilla) : semilla_(semilla), g_(semilla * 7919u + 1) {}

    // Runs `acciones` actions, stopping at the first broken rule.
    void Corre(int acciones)
    {
        Arranque();
        for (int i = 0; i < acciones && !::testing::Test::HasFailure(); ++i) {
            Accion();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            Verifica();
        }
        // The stream must have reached every part of the program.
        EXPECT_GT(dialogos_, acciones / 20);
        EXPECT_GT(mensajes_, 10);
        EXPECT_GT(finales_, acciones / 100);
        EXPECT_GT(salidas_, 0);
        if (::testing::Test::HasFailure()) {
            std::ostringstream lista;
            for (const std::string &a : registro_)
                lista << a << ' ';
            ADD_FAILURE() << "seed " << semilla_ << ", after " << registro_.size()
                          << " actions: " << lista.str();
        }
    }

  private:
    int Dado(int n) { return std::uniform_int_distribution<int>(0, n - 1)(g_); }
    void Anota(const std::string &a) { registro_.push_back(a); }

    void Arranque()
    {
        Main();
        const bool ingles = Dado(2) == 1;
        Anota(ingles ? "start-en" : "start-es");
        if (ingles)
            Clic(frmSeleccion().optIngles);
        Clic(frmSeleccion().cmdAceptar);
        nombresDados_ = false;
    }

    // A name of 0 to 20 characters: letters, accented and other scripts, spaces.
    QString Nombre()
    {
        static const QString letras = QStringLiteral("abcAnaBeto  áéñÑüΩЖ中 ");
        QString s;
        for (int n = Dado(21); n > 0; --n)
            s += letras[Dado(static_cast<int>(letras.size()))];
        return s;
    }

    // One way to close a dialog without its own buttons.
    void Cierra(QWidget *w)
    {
        if (Dado(2))
            w->close();
        else
            QTest::keyClick(w, Qt::Key_Escape);
    }

    void Accion()
    {
        ui::VentanaPrincipal &f = Form1();
        const int d = Dado(100);
        if (d < 50) {
            const int k = Dado(9);
            Anota("sq" + std::to_string(k));
            const bool antes = Jugando;
            Clic(f.cmdtir[static_cast<std::size_t>(k)]);
            finales_ += antes && !Jugando;
        } else if (d < 58) {
            Anota("new");
            Clic(f.cmdnuevo);
        } else if (d < 64) {
            Anota("1vs2");
            if (!f.mnu1vs2->isChecked())
                Oponentes();
            f.mnu1vs2->trigger();
        } else if (d < 70) {
            Anota("vspc");
            f.mnuvspc->trigger();
        } else if (d < 76) {
            Anota("level");
            if (f.mnuNivel->isEnabled())
                NivelAlAzar();
            f.mnuNivel->trigger();
        } else if (d < 82) {
            Anota("names");
            if (f.mnuoponentes->isEnabled())
                Oponentes();
            f.mnuoponentes->trigger();
        } else if (d < 91) {
            Anota("language");
            IdiomaAlAzar();
            f.mnuSeleccionIdioma->trigger();
        } else if (d < 99) {
            Anota("about");
            CuandoModal([this](QWidget *w) {
                ++dialogos_;
                if (Dado(2))
                    Clic(dynamic_cast<ui::DialogoAcerca &>(*w).cmdAceptar);
                else
                    Cierra(w);
            });
            f.mnuacerca->trigger();
        } else {
            Anota("exit");
            ++salidas_;
            EXPECT_EQ(CorreHastaElFin([] { Form1().mnuSalir->trigger(); }), 0);
            EXPECT_FALSE(Form1.Existe());
            Arranque();
        }
    }

    void NivelAlAzar()
    {
        CuandoModal([this](QWidget *w) {
            ++dialogos_;
            auto &n = dynamic_cast<ui::DialogoNivel &>(*w);
            for (int i = Dado(4); i > 0; --i)
                Clic(n.optNivel.Opcion(Dado(3)));
            if (Dado(2))
                Clic(n.cmdok);
            else
                Cierra(w);
        });
    }

    void IdiomaAlAzar()
    {
        CuandoModal([this](QWidget *w) {
            ++dialogos_;
            auto &s = dynamic_cast<ui::VentanaIdioma &>(*w);
            for (int i = Dado(3); i > 0; --i)
                Clic(Dado(2) ? s.optIngles : s.optEspañol);
            const int fin = Dado(3);
            if (fin == 0)
                Clic(s.cmdAceptar);
            else if (fin == 1)
                Clic(s.cmdSalir);
            else
                Cierra(w);
        });
    }

    // Up to three tries at two names, each answered as the dialog requires.
    void Oponentes()
    {
        CuandoModal([this](QWidget *w) {
            ++dialogos_;
            auto &o = dynamic_cast<ui::DialogoOponentes &>(*w);
            for (int intento = 0; intento < 3; ++intento) {
                o.Text1[0]->clear();
                o.Text1[1]->clear();
                const QString uno = Nombre();
                Teclea(o.Text1[0], uno);
                Teclea(o.Text1[1], Dado(4) == 0 ? uno : Nombre());
                const int fin = Dado(5);
                if (fin == 3) {
                    Clic(o.Command2);
                    nombresDados_ = true;
                    return;
                }
                if (fin == 4) {
                    Cierra(w);
                    return;
                }
                const QString a = o.Text1[0]->text(), b = o.Text1[1]->text();
                const bool valido = !Trim(a).isEmpty() && !Trim(b).isEmpty() && a != b;
                if (!valido)
                    CuandoModal([this](QWidget *m) {
                        ++mensajes_;
                        if (Dado(2))
                            CierraMensaje(m);
                        else
                            Cierra(m);
                    });
                if (fin == 0)
                    Clic(o.Command1);
                else
                    QTest::keyClick(o.Text1[static_cast<std::size_t>(fin - 1)], Qt::Key_Return);
                if (valido) {
                    nombresDados_ = true;
                    return;
                }
                EXPECT_TRUE(frmoponentes.Existe());
            }
            Clic(o.Command2);
            nombresDados_ = true;
        });
    }

    void Verifica()
    {
        for (QWidget *w : QApplication::topLevelWidgets())
            if (w->isVisible() && w != &Form1())
                ADD_FAILURE() << "left open: " << w->metaObject()->className() << " "
                              << qPrintable(w->windowTitle());
        ui::VentanaPrincipal &f = Form1();
        for (int k = 0; k < 9; ++k) {
            const Integer v = Tablero(k % 3, k / 3);
            const QString t = f.cmdtir[static_cast<std::size_t>(k)]->text();
            ASSERT_EQ(t, v == kEquis ? "X" : v == kCero ? "0" : "") << "square " << k;
        }
        ASSERT_EQ(Jugando, !f.cmdnuevo->isEnabled());
        ASSERT_EQ(Jugando, !HayGanador(Tablero) && !TableroLleno(Tablero));
        ASSERT_TRUE(Modo == 1 || Modo == 2);
        const bool contraPC = Modo == 1;
        ASSERT_EQ(f.mnuvspc->isChecked(), contraPC);
        ASSERT_EQ(f.mnu1vs2->isChecked(), !contraPC);
        ASSERT_EQ(f.mnuNivel->isEnabled(), contraPC);
        ASSERT_EQ(f.mnuoponentes->isEnabled(), !contraPC);
        ASSERT_TRUE(Nivel >= 1 && Nivel <= 3);
        ASSERT_EQ(Titulo(), strTitulo + (Idioma != 0 ? " (Nivel " : " (Level ") +
                                QString::number(Nivel) + ")");
        for (const std::string *j : {&Jugador1, &Jugador2}) {
            const QString nombre = QString::fromStdString(*j);
            ASSERT_EQ(nombre, Trim(nombre));
            ASSERT_EQ(nombre.isEmpty(), !nombresDados_) << j->size();
        }
    }

    unsigned semilla_;
    std::mt19937 g_;
    std::vector<std::string> registro_;
    bool nombresDados_ = false;
    int dialogos_ = 0;
    int mensajes_ = 0;
    int finales_ = 0;
    int salidas_ = 0;
};

class Aleatorio : public ::testing::TestWithParam<unsigned> {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

} // namespace

TEST_P(Aleatorio, TwentyThousandActions)
{
    AzarSemilla azar(GetParam());
    SesionAleatoria(GetParam()).Corre(20000);
}

INSTANTIATE_TEST_SUITE_P(Semillas, Aleatorio, ::testing::Values(1u, 2u, 3u));
