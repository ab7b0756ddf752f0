// The interpreter of the scripts in tests/datos/guiones.txt: each line is an
// action on the window in front or a check of what it shows.
#include "apoyo_ui.h"

#include <qpa/qwindowsysteminterface.h>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

// WCAG's relative luminance.
double Luz(const QColor &c)
{
    double l = 0;
    for (auto [canal, peso] :
         {std::pair{c.redF(), 0.2126}, {c.greenF(), 0.7152}, {c.blueF(), 0.0722}})
        l += peso * (canal <= 0.03928 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4));
    return l;
}

// Every caption of the window fits the part of its control the user can see
// (a control may run past its container's edge), and every enabled text
// stands out from the background it is drawn on (WCAG contrast 4.5 or more).
void BienVisible(QWidget *ventana)
{
    for (QWidget *w : ventana->findChildren<QWidget *>()) {
        if (w->size().isEmpty()) // a screen reader's notification: nothing to see
            continue;
        QString texto;
        int margen = 0;
        bool envuelve = false;
        QPalette::ColorRole tinta = QPalette::WindowText, fondo = QPalette::Window;
        QWidget *pinta = w; // the nearest widget that paints its own background
        while (!ColorFondo(pinta).isValid() && !pinta->isWindow())
            pinta = pinta->parentWidget();
        const auto medida = [w](QStyle::PixelMetric m) {
            return w->style()->pixelMetric(m, nullptr, w);
        };
        if (auto *r = qobject_cast<QRadioButton *>(w)) {
            texto = r->text();
            margen = medida(QStyle::PM_ExclusiveIndicatorWidth) +
                     medida(QStyle::PM_RadioButtonLabelSpacing);
        } else if (auto *b = qobject_cast<QPushButton *>(w)) {
            texto = b->text();
            margen = 2 * medida(QStyle::PM_ButtonMargin);
            tinta = QPalette::ButtonText, fondo = QPalette::Button, pinta = w;
        } else if (auto *l = qobject_cast<QLabel *>(w)) {
            texto = l->text();
            margen = 2 * (l->frameWidth() + l->margin());
            envuelve = l->wordWrap();
        } else if (qobject_cast<QLineEdit *>(w)) {
            tinta = QPalette::Text, fondo = QPalette::Base, pinta = w;
        } else {
            continue;
        }
        const QColor propio = ColorFondo(pinta);
        const double a = Luz(w->palette().color(tinta)),
                     b = Luz(fondo == QPalette::Window && propio.isValid()
                                 ? propio
                                 : pinta->palette().color(fondo));
        if (w->isEnabled()) { // greyed-out texts are meant to recede
            EXPECT_GE((std::max(a, b) + 0.05) / (std::min(a, b) + 0.05), 4.5)
                << qPrintable(Describe(w));
        }
        const int ancho =
            std::min(w->width(), w->parentWidget()->contentsRect().right() + 1 - w->x());
        // As shown: "&" marks the access key, "&&" shows one "&".
        texto.replace("&&", "\x01").remove('&').replace('\x01', '&');
        // A label that wraps may take as many lines as fit.
        const QRect r = QFontMetrics(w->font()).boundingRect(
            QRect(0, 0, ancho - margen, 1000), envuelve ? Qt::TextWordWrap : 0, texto);
        EXPECT_TRUE(r.width() + margen <= ancho && r.height() <= w->height())
            << qPrintable(texto) << " needs " << r.width() + margen << "x" << r.height();
    }
}

// Runs one line per turn of whichever event loop is running, so that the
// lines after one that opens a dialog run inside it. A line's indent, two
// spaces a level, is the depth of the modal window it is for: a line waits
// until its window opens, or until the ones above it have closed and the
// code that opened them has finished.
class Guion {
  public:
    Guion(bool ingles, QStringList lineas) : ingles_(ingles), lineas_(std::move(lineas)) {}

    void Corre()
    {
        QTimer::singleShot(0, &vida_, [this] { Siguiente(); });
        while (!lineas_.isEmpty()) // each run of the loop ends with the script or the program
            salida_ = QCoreApplication::exec();
    }

  private:
    void Siguiente()
    {
        if (lineas_.isEmpty()) // a failure ended the script
            return;
        QString linea = lineas_.first(); // "\\u{HEX}" stands for any character
        static const QRegularExpression codigo(R"(\\u\{([0-9A-F]+)\})");
        for (QRegularExpressionMatch m; (m = codigo.match(linea)).hasMatch();) {
            const char32_t c = m.captured(1).toUInt(nullptr, 16);
            linea.replace(m.capturedStart(), m.capturedLength(), QString::fromUcs4(&c, 1));
        }
        QStringList p = linea.split(' ', Qt::SkipEmptyParts);
        const int nivel = QThread::currentThread()->loopLevel();
        const bool fin = p[0] == "ended" && salida_ < 0; // the loop has yet to end
        if (nivel <= ocupado_ || nivel != linea.indexOf(p[0]) / 2 + 1 || fin) {
            if (!plazo_.hasExpired())
                return QTimer::singleShot(0, &vida_, [this] { Siguiente(); });
            ADD_FAILURE() << "waited 5 s for a window to open or close at: " << qPrintable(linea);
            lineas_.clear();
            return QCoreApplication::exit(1);
        }
        plazo_ = QDeadlineTimer(5000);
        lineas_.removeFirst();
        if (!lineas_.isEmpty()) // queued first: it may run in a dialog this line opens
            QTimer::singleShot(0, &vida_, [this] { Siguiente(); });
        const int antes = std::exchange(ocupado_, nivel);
        if (!p[0].startsWith('@') || p.takeFirst() == (Idioma == kIngles ? "@en" : "@es")) {
            SCOPED_TRACE(linea.toStdString());
            const QString orden = p.takeFirst();
            Paso(orden, p, linea.section('|', 1, 1));
        }
        ocupado_ = antes;
        if (::testing::Test::HasFatalFailure())
            lineas_.clear();
        if (lineas_.isEmpty())
            QCoreApplication::exit(0);
    }

    // A text of textos.txt in the language in force ("_" is empty), followed
    // by what comes after a "+"; a word that is no key stands for itself.
    QString Texto(const QString &clave) const
    {
        const QString k = clave.section('+', 0, 0), resto = clave.section('+', 1);
        const QStringList d = Datos(k.toStdString(), Idioma == kIngles ? "en" : "es");
        return (d.isEmpty() ? k : d[0] == "_" ? QString() : d[0]) + resto;
    }

    // The window in front takes the keyboard. A headless compositor has no
    // seat to give it: the test stands in for it there.
    static bool Activa()
    {
        if (QGuiApplication::platformName() != "wayland") {
            Delante()->activateWindow();
            return QTest::qWaitForWindowActive(Delante());
        }
        // Deprecated since Qt 6.5 for programs, where the window system
        // decides; Qt offers no other way to stand in for a missing seat.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        QApplication::setActiveWindow(Delante());
        QT_WARNING_POP
        return QApplication::activeWindow() == Delante();
    }

    // The menu's items, in the order it lists them.
    static QAction *Item(const QString &nombre)
    {
        const QStringList items{"1vs2", "vspc", "-", "level", "names", "language", "about", "exit"};
        return Form1().mnuOpciones->actions().at(items.indexOf(nombre));
    }

    QRadioButton *Opcion(int i) const { return Delante()->findChildren<QRadioButton *>().at(i); }
    QLineEdit *Caja(int i) const { return Delante()->findChildren<QLineEdit *>().at(i); }

    // `texto` is what stands between the bars of the line, spaces and all.
    void Paso(const QString &orden, const QStringList &p, const QString &texto)
    {
        const QString resto = p.join(' ');
        const int n = p.value(0).toInt();
        if (orden == "menu") {
            Item(resto)->trigger();
        } else if (orden == "draws") {
            if (!azar_)
                azar_ = std::make_unique<AzarGuionado>();
            for (const QString &x : p)
                azar_->valores.push_back(x == "1-" ? kCasiUno : x.toFloat());
        } else if (orden == "start" || orden == "main") {
            Main();
            if (ingles_)
                Clic(frmSeleccion().optIngles);
            if (orden == "start")
                Clic(frmSeleccion().cmdAceptar);
        } else if (orden == "sq") {
            for (const QString &k : p)
                Clic(Form1().cmdtir[k.toInt()]);
        } else if (orden == "new") {
            Clic(Form1().cmdnuevo);
        } else if (orden == "ok" || orden == "cancel") {
            Clic(Delante()->findChildren<QPushButton *>().at(orden == "ok" ? 0 : 1));
        } else if (orden == "opt") {
            Clic(Opcion(n));
        } else if (orden == "toggle") { // the other of two options
            Clic(Opcion(Opcion(0)->isChecked() ? 1 : 0));
        } else if (orden == "press" || orden == "behind") {
            // press/behind sq K | button N | menu ITEM | select BOX FROM TO | close:
            // in the window in front, or in the one under it (the owner of a
            // message box, else the main window); pressed or selected as a
            // screen reader does, or closed as the window manager asks.
            QWidget *v = orden == "press"            ? Delante()
                         : Delante()->parentWidget() ? Delante()->parentWidget()
                                                     : &Form1();
            const int i = p.value(1).toInt();
            if (p.value(0) == "close") // through the window system, as the window manager asks
                return void(QWindowSystemInterface::handleCloseEvent<
                            QWindowSystemInterface::SynchronousDelivery>(v->windowHandle()));
            if (p.value(0) == "select")
                return Accesible(v->findChildren<QLineEdit *>().at(i))
                    ->textInterface()
                    ->setSelection(0, p.value(2).toInt(), p.value(3).toInt());
            Accesible(p.value(0) == "sq"     ? static_cast<QObject *>(Form1().cmdtir[i])
                      : p.value(0) == "menu" ? static_cast<QObject *>(Item(p.value(1)))
                                             : v->findChildren<QPushButton *>().at(i))
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::pressAction());
            QCoreApplication::processEvents(); // it lands once the loop is back
        } else if (orden == "type") {
            for (char32_t c : texto.toUcs4()) { // a key per code point
                QKeyEvent tecla(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier,
                                QString::fromUcs4(&c, 1));
                QApplication::sendEvent(Caja(n), &tecla);
            }
        } else if (orden == "paste") { // with Ctrl+V, where there is a clipboard
            if (QGuiApplication::platformName() == "wayland") // the test's compositor has no seat
                return Caja(n)->insert(texto);
            QApplication::clipboard()->setText(texto);
            QTest::keyClick(Caja(n), Qt::Key_V, Qt::ControlModifier);
        } else if (orden == "write") { // write N |TEXT|: box N's contents, as AT-SPI sets them
            QAccessibleInterface *caja = Accesible(Caja(n));
            ASSERT_TRUE(caja->editableTextInterface() && caja->textInterface());
            caja->editableTextInterface()->replaceText(0, caja->textInterface()->characterCount(),
                                                       texto);
        } else if (orden == "clear") {
            Caja(n)->clear();
        } else if (orden == "key") { // key NAME [box N | opt N]
            QWidget *w = p.value(1) == "box"   ? Caja(p.value(2).toInt())
                         : p.value(1) == "opt" ? Opcion(p.value(2).toInt())
                                               : Delante();
            ASSERT_TRUE(Activa()); // arrows move from the focus of the active window
            w->setFocus();
            QTest::keyClick(w, QKeySequence::fromString(p.value(0))[0].key());
        } else if (orden == "theme") { // dark: light text on dark grounds
            QApplication::setPalette(QPalette(QColor(55, 55, 55), QColor(40, 40, 40)));
        } else if (orden == "said") { // the message box in front
            auto *m = qobject_cast<QMessageBox *>(Delante());
            ASSERT_TRUE(m && m->icon() == QMessageBox::Information && m->buttons().size() == 1);
            EXPECT_EQ(m->windowHandle()->transientParent(), frmoponentes().windowHandle());
            EXPECT_EQ(m->windowTitle(), Texto("msgTitulo"));
            EXPECT_EQ(m->text(), Texto(resto));
        } else if (orden == "ended") { // the program, by itself, since the last line
            EXPECT_EQ(std::exchange(salida_, -1), 0);
            EXPECT_FALSE(Form1.Existe());
        } else if (orden == "board") { // as a screen reader reads the squares: X, 0 or empty
            QString s;
            for (QPushButton *b : Form1().cmdtir)
                s += Accesible(b)->text(QAccessible::Name).section(": ", 1).left(1);
            EXPECT_EQ(s.replace(QRegularExpression("[^X0]"), "."), resto);
        } else if (orden == "status") { // as a screen reader reads it
            EXPECT_EQ(Accesible(Form1().Panel)->text(QAccessible::Name), Texto(resto));
        } else if (orden == "heard") { // the last notification, told once the window is active
            ASSERT_TRUE(Activa());
            QCoreApplication::processEvents();
            auto *aviso = Form1().findChild<QWidget *>("aviso");
            EXPECT_EQ(aviso ? aviso->findChild<QLabel *>()->text() : QString(), Texto(texto));
            // Nothing of it on screen: its status bar takes no room either.
            EXPECT_TRUE(!aviso || aviso->parentWidget()->geometry().isEmpty());
        } else if (orden == "panel") { // as drawn, with what isolates a name
            EXPECT_EQ(Form1().Panel->text(), texto);
        } else if (orden == "title") {
            EXPECT_EQ(Form1().windowTitle(), resto);
        } else if (orden == "options") {
            EXPECT_EQ(Describe(Form1().mnuOpciones), resto);
        } else if (orden == "names") {
            EXPECT_EQ(QString::fromStdString(Jugador1 + '|' + Jugador2),
                      Texto(resto.section('|', 0, 0)) + '|' + Texto(resto.section('|', 1)));
        } else if (orden == "state") { // state Nivel Modo Turno DesdeMenu
            EXPECT_EQ(QString::asprintf("%d %d %d %d", Nivel, Modo, Turno, DesdeMenu), resto);
        } else if (orden == "draws-made") {
            EXPECT_EQ(azar_ ? azar_->sacadas : 0, p.value(0).toInt());
            EXPECT_EQ(azar_ ? azar_->excedidas : 0, 0);
        } else if (orden == "shows") { // the window in front, as textos.txt has it
            EXPECT_EQ(Textos(Delante(), false),
                      Datos(resto.toStdString(), Idioma == kIngles ? "en" : "es"));
        } else if (orden == "centred") { // a dialog over the main window, the rest on the screen
            const bool sobre = QApplication::activeModalWidget() && Form1().isVisible();
            // The window system knows what a dialog opens over; on Wayland
            // that is all a client can see of where its windows are.
            EXPECT_EQ(Delante()->windowHandle()->transientParent(),
                      sobre ? Form1().windowHandle() : nullptr);
            const QRect r =
                sobre ? Form1().frameGeometry() : Delante()->screen()->availableGeometry();
            const QRect f = Delante()->frameGeometry();
            // Qt places a dialog over its window by guessing the frames from
            // the side border of the windows shown; where there is none
            // (Wine's frames) it takes a fixed frame: the place is Qt's guess.
            const bool adivinado = sobre && QGuiApplication::platformName() == "windows" &&
                                   Form1().geometry().x() == Form1().x();
            if (adivinado)
                std::fprintf(stderr, "centred: frames without side borders, the dialog's place "
                                     "is Qt's guess: left unchecked\n");
            EXPECT_TRUE(QGuiApplication::platformName() == "wayland" || adivinado ||
                        (f.center() - r.center()).manhattanLength() <= 8)
                << f.x() << "," << f.y() << " " << f.width() << "x" << f.height() << " in " << r.x()
                << "," << r.y() << " " << r.width() << "x" << r.height();
        } else if (orden == "tabs") { // what a screen reader hears at the focus, then at each Tab
            const QStringList esperado = Datos(resto.toStdString(), "tab");
            QStringList oido;
            ASSERT_TRUE(Activa());
            while (oido.size() < esperado.size()) {
                oido << Accesible(QApplication::focusWidget())->text(QAccessible::Name);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            EXPECT_EQ(oido, esperado);
        } else if (orden == "readable") {
            BienVisible(Delante());
        } else if (orden == "drawn-anew") { // the panel's picture, unlike at the last such line
            const QImage ahora = Form1().Panel->grab().toImage();
            EXPECT_NE(std::exchange(panel_, ahora), ahora);
        } else if (orden == "grid") { // the lines between the squares, at any scale
            const QImage imagen = Form1().centralWidget()->grab().toImage();
            const qreal escala = imagen.devicePixelRatio();
            const QColor linea = Form1().palette().color(QPalette::WindowText);
            const auto en = [&](int x, int y) {
                return imagen.pixelColor(qRound(x * escala), qRound(y * escala)) == linea;
            };
            for (QPoint q : {QPoint(112, 100), QPoint(113, 280), QPoint(114, 100), QPoint(193, 150),
                             QPoint(30, 122), QPoint(290, 194), QPoint(160, 194)})
                EXPECT_TRUE(en(q.x(), q.y())) << q.x() << "," << q.y() << " at scale " << escala;
            EXPECT_FALSE(en(113, 20)); // under the panel
        } else if (orden == "focus") {
            EXPECT_EQ(Delante()->focusWidget(), Caja(n));
        } else if (orden == "text") {
            EXPECT_EQ(Caja(n)->text(), texto);
        } else if (orden == "selection") { // selection N |TEXT| CARET
            EXPECT_EQ(Caja(n)->selectedText(), texto);
            EXPECT_EQ(Caja(n)->cursorPosition(), p.last().toInt());
        } else if (orden == "selected") {
            EXPECT_TRUE(Opcion(n)->isChecked());
        } else {
            ADD_FAILURE() << "unknown step";
        }
    }

    bool ingles_;
    QStringList lineas_;
    QObject vida_; // the queued lines die with the script
    QDeadlineTimer plazo_{5000};
    int ocupado_ = 0; // the loop level of the line running
    int salida_ = -1; // how the last run of the loop ended
    std::unique_ptr<AzarGuionado> azar_;
    QImage panel_;
};

} // namespace

void Ejecuta(const QStringList &lineas, bool ingles)
{
    Guion(ingles, lineas).Corre();
}
