// What makes it a well-behaved desktop program: every caption fits its
// control and every text stands out from its background, in both languages,
// under a light and a dark theme; the grid stays between the squares. The
// suite runs these again at 1.5x and 2x.
#include "apoyo_ui.h"
#include "idioma.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>

#include <cmath>

namespace {

class Escritorio : public Programa {};

// WCAG's relative luminance and contrast ratio (1 to 21).
double Luz(const QColor &c)
{
    double l = 0;
    for (auto [canal, peso] :
         {std::pair{c.redF(), 0.2126}, {c.greenF(), 0.7152}, {c.blueF(), 0.0722}})
        l += peso * (canal <= 0.03928 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4));
    return l;
}
double Contraste(const QColor &a, const QColor &b)
{
    return (std::max(Luz(a), Luz(b)) + 0.05) / (std::min(Luz(a), Luz(b)) + 0.05);
}

// Every caption of the window fits the part of its control the user can see
// (a control may run past its container's edge), and every enabled text
// stands out from the background it is drawn on.
void BienVisible(QWidget *ventana)
{
    for (QWidget *w : ventana->findChildren<QWidget *>()) {
        const QPalette &p = w->palette();
        QString texto;
        int margen = 0;
        QPalette::ColorRole tinta = QPalette::WindowText, fondo = QPalette::Window;
        QWidget *pinta = w; // the nearest widget that paints its own background
        while (!pinta->autoFillBackground() && !pinta->isWindow())
            pinta = pinta->parentWidget();
        if (auto *r = qobject_cast<QRadioButton *>(w)) {
            texto = r->text();
            margen = w->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, w) +
                     w->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, w);
        } else if (auto *b = qobject_cast<QPushButton *>(w)) {
            texto = b->text();
            margen = 2 * w->style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, w);
            tinta = QPalette::ButtonText, fondo = QPalette::Button, pinta = w;
        } else if (auto *l = qobject_cast<QLabel *>(w)) {
            texto = l->text();
            margen = 2 * (l->frameWidth() + l->margin());
        } else if (qobject_cast<QLineEdit *>(w)) {
            tinta = QPalette::Text, fondo = QPalette::Base, pinta = w;
        } else {
            continue;
        }
        if (w->isEnabled()) { // greyed-out texts are meant to recede
            EXPECT_GE(Contraste(p.color(tinta), pinta->palette().color(fondo)), 4.5)
                << qPrintable(ventana->windowTitle()) << ": " << qPrintable(Describe(w));
        }
        const int ancho =
            std::min(w->width(), w->parentWidget()->contentsRect().right() + 1 - w->x());
        // As shown: "&" marks the access key, "&&" shows one "&".
        texto.replace("&&", "\x01").remove('&').replace('\x01', '&');
        for (const QString &linea : texto.split('\n'))
            EXPECT_LE(QFontMetrics(w->font()).horizontalAdvance(linea) + margen, ancho)
                << qPrintable(ventana->windowTitle()) << ": " << qPrintable(linea);
    }
}

} // namespace

TEST_F(Escritorio, EveryCaptionFitsAndEveryTextIsReadable)
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
    for (const QPalette &tema : {claro, oscuro})
        for (bool ingles : {false, true}) {
            ReiniciaPrograma();
            QApplication::setPalette(tema);
            Main();
            if (ingles)
                Clic(frmSeleccion().optIngles);
            BienVisible(&frmSeleccion());
            Clic(frmSeleccion().cmdAceptar);
            for (QWidget *v :
                 std::initializer_list<QWidget *>{&frmNivel(), &frmoponentes(), &frmAbout()})
                BienVisible(v);
            for (const QString &mensaje :
                 {strTuTurno, strFelicidades, strPierdes, strEmpate, strTurnoDe + strJugadorDos,
                  strGana + strJugadorDos + "!"}) {
                Form1().Panel->setText(mensaje);
                BienVisible(&Form1());
            }
        }
    QApplication::setPalette(claro);
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
    for (QPoint p : {QPoint(112, 100), QPoint(113, 280), QPoint(114, 100), QPoint(193, 150),
                     QPoint(30, 122), QPoint(290, 194), QPoint(160, 194)})
        EXPECT_EQ(en(p.x(), p.y()), linea) << p.x() << "," << p.y() << " at scale " << escala;
    EXPECT_NE(en(113, 20), linea);  // under the panel
    for (QPushButton *b : f.cmdtir) // no line crosses a square
        for (int x = b->x() + 2; x < b->x() + b->width() - 2; x += 4)
            ASSERT_NE(en(x, b->y() + b->height() / 2), linea);
}
