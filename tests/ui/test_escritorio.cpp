// What makes it a well-behaved desktop program: accessible names, captions
// that fit at any scale, the keyboard, the icon.
#include "apoyo_ui.h"
#include "estado.h"
#include "icono.h"
#include "idioma.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

namespace {

class Escritorio : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

QString Accesible(QObject *o, QAccessible::Text t = QAccessible::Name)
{
    QAccessibleInterface *i = QAccessible::queryAccessibleInterface(o);
    return i ? i->text(t) : QStringLiteral("<none>");
}

// The caption as shown: "&" marks the access key, "&&" shows one "&".
QString Visible(QString s)
{
    s.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    s.remove(u'&');
    s.replace(u'\x01', u'&');
    return s;
}

// Fails for every caption of the window that is wider than the part of its
// control the user can see (a control may run past its container's edge).
void CabenLosRotulos(QWidget *ventana)
{
    for (QWidget *w : ventana->findChildren<QWidget *>()) {
        QString texto;
        int extra = 0;
        if (auto *b = qobject_cast<QAbstractButton *>(w)) {
            texto = b->text();
            extra =
                qobject_cast<QRadioButton *>(w)
                    ? w->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, w) +
                          w->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, w)
                    : 2 * w->style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, w);
        } else if (auto *l = qobject_cast<QLabel *>(w)) {
            texto = l->text();
            extra = 2 * (l->frameWidth() + l->margin());
        }
        if (texto.isEmpty())
            continue;
        int ancho = w->width();
        if (QWidget *padre = w->parentWidget())
            ancho = std::min(ancho, padre->contentsRect().right() + 1 - w->x());
        const QFontMetrics fm(w->font());
        for (const QString &linea : Visible(texto).split(u'\n'))
            EXPECT_LE(fm.horizontalAdvance(linea) + extra, ancho)
                << qPrintable(ventana->windowTitle()) << ": \"" << qPrintable(linea) << "\"";
    }
}

} // namespace

TEST_F(Escritorio, SquaresAreNamedInTheCurrentLanguage)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    EXPECT_EQ(Accesible(f.cmdtir[0]), QStringLiteral("Casilla 1, fila 1, columna 1: vacía"));
    EXPECT_EQ(Accesible(f.cmdtir[5]), QStringLiteral("Casilla 6, fila 2, columna 3: vacía"));
    EXPECT_EQ(Accesible(f.cmdtir[0], QAccessible::Description), "Pulse para jugar en esta casilla");
    Juega({0}); // the computer answers in the centre
    EXPECT_EQ(Accesible(f.cmdtir[0]), "Casilla 1, fila 1, columna 1: X");
    EXPECT_EQ(Accesible(f.cmdtir[4]), "Casilla 5, fila 2, columna 2: 0");

    CuandoModal([](QWidget *w) {
        Clic(dynamic_cast<ui::VentanaIdioma *>(w)->optIngles);
        w->close();
    });
    f.mnuSeleccionIdioma->trigger();
    EXPECT_EQ(Accesible(f.cmdtir[4]), "Square 5, row 2, column 2: 0");
    EXPECT_EQ(Accesible(f.cmdtir[8]), "Square 9, row 3, column 3: empty");
    EXPECT_EQ(Accesible(f.cmdtir[8], QAccessible::Description), "Press to play on this square");

    azar.Agrega({kPersonaAbre});
    Clic(f.cmdnuevo); // disabled during a game: nothing happens
    EXPECT_EQ(Accesible(f.cmdtir[0]), "Square 1, row 1, column 1: X");
    f.cmdnuevo_Click();
    EXPECT_EQ(Accesible(f.cmdtir[0]), "Square 1, row 1, column 1: empty");
}

TEST_F(Escritorio, StatusPanelSpeaksItsMessageAndBoxesAreLabelled)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(true);
    EXPECT_EQ(Accesible(Form1().Panel), "Your turn");
    Juega({0, 1, 3});
    EXPECT_EQ(Accesible(Form1().Panel), "You lose");

    EXPECT_EQ(Accesible(frmoponentes().Text1[0]), "Name to first player:");
    EXPECT_EQ(Accesible(frmoponentes().Text1[1]), "Name to second player:");
}

TEST_F(Escritorio, EveryCaptionFitsItsControlInBothLanguages)
{
    for (bool ingles : {false, true}) {
        ReiniciaPrograma();
        Main();
        if (ingles)
            Clic(frmSeleccion().optIngles);
        CabenLosRotulos(&frmSeleccion());
        Clic(frmSeleccion().cmdAceptar);
        CabenLosRotulos(&Form1());
        CabenLosRotulos(&frmNivel());
        CabenLosRotulos(&frmoponentes());
        CabenLosRotulos(&frmAbout());
        for (const QString &mensaje : {strTuTurno, strFelicidades, strPierdes, strEmpate,
                                       strTurnoDe + strJugadorDos, strGana + strJugadorDos + "!"}) {
            Form1().Panel->setText(mensaje);
            CabenLosRotulos(&Form1());
        }
    }
}

TEST_F(Escritorio, TheGridStaysBetweenTheSquaresAtAnyScale)
{
    AzarGuionado azar({kPersonaAbre}); // the person opens: the squares stay empty
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    const QImage imagen = f.centralWidget()->grab().toImage();
    const qreal escala = imagen.devicePixelRatio();
    const QColor linea = f.palette().color(QPalette::WindowText);
    const auto en = [&](int x, int y) {
        return imagen.pixelColor(qRound(x * escala), qRound(y * escala));
    };
    for (QPoint p : {QPoint(113, 100), QPoint(113, 280), QPoint(193, 150), QPoint(30, 122),
                     QPoint(290, 194), QPoint(160, 194)})
        EXPECT_EQ(en(p.x(), p.y()), linea) << p.x() << "," << p.y() << " at scale " << escala;
    EXPECT_NE(en(113, 20), linea);  // under the panel
    for (QPushButton *b : f.cmdtir) // no line crosses a square
        for (int x = b->x() + 2; x < b->x() + b->width() - 2; x += 4)
            ASSERT_NE(en(x, b->y() + b->height() / 2), linea);
}

TEST_F(Escritorio, AltOOpensTheMenu)
{
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    QTest::keyClick(&f, Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(f.mnuOpciones->isVisible(), 2000);
    EXPECT_EQ(f.mnuOpciones->activeAction(), f.mnu1vs2);
    QTest::keyClick(f.mnuOpciones, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!f.mnuOpciones->isVisible(), 2000);
}

TEST_F(Escritorio, IconIsSixteenColourPixelArtAtEverySize)
{
    const std::set<QRgb> paleta = {0xff000000, 0xff800000, 0xff008000, 0xff808000,
                                   0xff000080, 0xff800080, 0xff008080, 0xffc0c0c0,
                                   0xff808080, 0xffff0000, 0xff00ff00, 0xffffff00,
                                   0xff0000ff, 0xffff00ff, 0xff00ffff, 0xffffffff};
    for (int lado : {32, 64, 256}) {
        const QImage i = DibujaIcono(lado);
        ASSERT_EQ(i.size(), QSize(lado, lado));
        std::set<QRgb> colores;
        for (int y = 0; y < lado; ++y)
            for (int x = 0; x < lado; ++x)
                if (qAlpha(i.pixel(x, y)) != 0)
                    colores.insert(i.pixel(x, y));
        EXPECT_GE(colores.size(), 4u);
        for (QRgb c : colores)
            EXPECT_TRUE(paleta.count(c)) << std::hex << c << " at " << std::dec << lado;
    }
    // The larger sizes are the 32x32 picture, pixel for pixel.
    const QImage base = DibujaIcono(32);
    const QImage grande = DibujaIcono(256);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            ASSERT_EQ(grande.pixel(8 * x + 4, 8 * y + 4), base.pixel(x, y));
    EXPECT_EQ(DibujaIcono(48).size(), QSize(48, 48));
    EXPECT_EQ(Form1()
                  .windowIcon()
                  .pixmap(QSize(32, 32), 1.0)
                  .toImage()
                  .convertToFormat(QImage::Format_ARGB32),
              base);
}
