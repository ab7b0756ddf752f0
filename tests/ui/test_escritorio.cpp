// What makes it a well-behaved desktop program: texts readable under any
// theme, captions that fit at any scale, the keyboard, the icon.
#include "apoyo_ui.h"
#include "estado.h"
#include "icono.h"
#include "idioma.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {

class Escritorio : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

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

// WCAG's contrast ratio of two colours, 1 to 21.
double Contraste(const QColor &a, const QColor &b)
{
    const auto luz = [](const QColor &c) {
        const auto canal = [](double v) {
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * canal(c.redF()) + 0.7152 * canal(c.greenF()) + 0.0722 * canal(c.blueF());
    };
    const double l1 = luz(a), l2 = luz(b);
    return (std::max(l1, l2) + 0.05) / (std::min(l1, l2) + 0.05);
}

// Every text of the window against the background it is drawn on.
void TextosLegibles(QWidget *ventana)
{
    for (QWidget *w : ventana->findChildren<QWidget *>()) {
        if (!w->isEnabled()) // greyed out by design
            continue;
        const QPalette &p = w->palette();
        QColor texto, fondo;
        if (qobject_cast<QLineEdit *>(w)) {
            texto = p.color(QPalette::Text);
            fondo = p.color(QPalette::Base);
        } else if (qobject_cast<QPushButton *>(w)) {
            texto = p.color(QPalette::ButtonText);
            fondo = p.color(QPalette::Button);
        } else if (qobject_cast<QLabel *>(w) || qobject_cast<QRadioButton *>(w)) {
            texto = p.color(QPalette::WindowText);
            QWidget *pinta = w; // the nearest widget that paints its own background
            while (!pinta->autoFillBackground() && !pinta->isWindow())
                pinta = pinta->parentWidget();
            fondo = pinta->palette().color(QPalette::Window);
        } else {
            continue;
        }
        EXPECT_GE(Contraste(texto, fondo), 4.5)
            << qPrintable(ventana->windowTitle()) << ": " << w->metaObject()->className() << " "
            << qPrintable(texto.name()) << " on " << qPrintable(fondo.name());
    }
}

} // namespace

TEST_F(Escritorio, EveryTextIsReadableUnderLightAndDarkThemes)
{
    const QPalette claro = QApplication::palette();
    QPalette oscuro = claro;
    for (auto [rol, color] : {std::pair{QPalette::Window, QColor(40, 40, 40)},
                              {QPalette::Base, QColor(25, 25, 25)},
                              {QPalette::Button, QColor(55, 55, 55)},
                              {QPalette::WindowText, QColor(230, 230, 230)},
                              {QPalette::Text, QColor(235, 235, 235)},
                              {QPalette::ButtonText, QColor(230, 230, 230)}})
        oscuro.setColor(rol, color);
    for (const QPalette &tema : {claro, oscuro}) {
        ReiniciaPrograma();
        QApplication::setPalette(tema);
        Arranca(false);
        for (QWidget *v :
             std::initializer_list<QWidget *>{&Form1(), &frmNivel(), &frmoponentes(), &frmAbout()})
            TextosLegibles(v);
        Main();
        TextosLegibles(&frmSeleccion());
    }
    QApplication::setPalette(claro);
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
