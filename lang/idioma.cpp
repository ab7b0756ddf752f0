#include "idioma.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

// One text in both languages.
struct Texto {
    QString *variable;
    const char16_t *ingles;
    const char16_t *espanol;
};

// The credit lines of the About box: lead-in, then the value.
struct Credito {
    const char16_t *inicioIngles;
    const char16_t *valorIngles;
    const char16_t *inicioEspanol;
    const char16_t *valorEspanol;
};
const Credito kCreditos[] = {
    {u"Program done by ", u"the Super Tirlo team", u"Program hecho por ",
     u"el equipo de Super Tirlo"},
    {u"Comments in web: ", u"the project's issue tracker", u"Comentarios en el web: ",
     u"las incidencias del proyecto"},
    {u"Web page: ", u"the project's repository", u"Página web: ", u"el repositorio del proyecto"},
};
const char16_t kLugar[] = u"Internet"; // the same in both languages

// The title, an empty line, the three credits and the place: six lines
// joined by CR LF, with nothing after the last.
QString TextoAcerca(bool ingles)
{
    const QString finLinea = QStringLiteral("\r\n");
    QString texto = strTitulo + finLinea;
    for (const Credito &c : kCreditos)
        texto += finLinea + QString::fromUtf16(ingles ? c.inicioIngles : c.inicioEspanol) +
                 QString::fromUtf16(ingles ? c.valorIngles : c.valorEspanol);
    return texto + finLinea + QString::fromUtf16(kLugar);
}

} // namespace

void CargaTextos(bool ingles)
{
    static const Texto kTextos[] = {
        {&strOponentesMenu, u"&Opponents", u"&Oponentes"},
        {&strOponentes, u"Opponents", u"Oponentes"},
        {&strNombrePrimero, u"Name to &first player:", u"Nombre del &primer jugador:"},
        {&strNombreSegundo, u"Name to &second player:", u"Nombre del &segundo jugador:"},
        {&strNivel, u"Level", u"Nivel"},
        {&strNuevoJuego, u"&New game", u"&Nuevo juego"},
        {&strJugadorUno, u"player one", u"Primer jugador"},
        {&strJugadorDos, u"player two", u"Segundo jugador"},
        {&strAcerca, u"&About...", u"&Acerca..."},
        {&strSalir, u"&Exit", u"&Salir"},
        {&strSeleccionIdioma, u"&Idiom Selection", u"Se&lección de idioma"},
        {&strTitulo, u"The tic tac toe", u"El famoso juego del tirlo"},
        {&strOpciones, u"&Options", u"&Opciones"},
        {&strAceptar, u"&Ok", u"&Aceptar"},
        {&strCancelar, u"&Cancel", u"&Cancelar"},
        {&strAcercaTitulo, u"About...", u"Acerca..."},
        {&strFacil, u"Easy", u"Fácil"},
        {&strMedio, u"Medium", u"Medio"},
        {&strNoGanas, u"You can not win", u"A que no ganas"},
        {&strNivelMenu, u"&Level", u"&Nivel"},
        {&strGana, u"Win ", u"¡Gana el jugador "},
        {&strFelicidades, u"Congratulations, you win!", u"¡Felicidades tu ganas!"},
        {&strEmpate, u"Draw game!", u"¡Juego empatado!"},
        {&strTurnoDe, u"", u"Turno de "},
        {&strPierdes, u"You lose", u"Lo siento tu pierdes"},
        {&strTuTurno, u"Your turn", u"Tu turno"},
    };
    for (const Texto &t : kTextos)
        *t.variable = QString::fromUtf16(ingles ? t.ingles : t.espanol);
    strAcercaTexto = TextoAcerca(ingles); // built on the new title
}

void TextosQtEnEspanol(bool espanol)
{
    static QTranslator *catalogo = [] {
        auto *t = new QTranslator(qApp);
        if (!t->load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            qWarning("Qt's Spanish catalogue (qtbase_es.qm) is not installed");
        return t;
    }();
    QCoreApplication::removeTranslator(catalogo);
    if (espanol)
        QCoreApplication::installTranslator(catalogo);
}
