#pragma once
// The players' names: how a name box takes them, how they are stored, and
// how a message shows them.

#include <QString>
#include <QValidator>

// The most characters, as a person counts them, that a name may have.
constexpr int kLargoNombre = 15;

// The text without its leading and trailing spaces (only the space character).
QString Trim(const QString &texto);

// A name inside a message, isolated from the text around it (first strong
// isolate ... pop directional isolate): whatever its script or its direction
// marks, the message keeps its own order around it. An empty name needs
// nothing.
QString Aislado(const QString &nombre);

// What a name box takes: its first line, without control characters or
// direction isolates; an edit that would leave more than kLargoNombre
// characters (an accent stays with its letter, an emoji sequence counts as
// one) is refused, as a full box refuses a key.
class ValidadorNombre : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString &texto, int &cursor) const override;
};
