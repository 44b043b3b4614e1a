#compdef quiralto-cli
# Completion of quiralto-cli for zsh.

_quiralto_cli_ordenes() {
    local -a ordenes
    ordenes=("${(@f)$($words[1] --listar 2>/dev/null)}")
    compadd -a ordenes
}

_arguments \
    '--cifras=[dígitos decimales del redondeo]:dígitos:({0..15})' \
    '--orden=[ejecuta una orden sobre la hoja]:orden:_quiralto_cli_ordenes' \
    '--resultado[con --orden\: solo lo que la orden ha añadido]' \
    '--json[con --orden\: un objeto JSON]' \
    '--sintaxis=[escribe la expresión normalizada]:expresión:' \
    '--evaluar=[escribe el valor de F en cada X]:F(X):' \
    '--derivar=[escribe la derivada de F]:F(X):' \
    '--pasos[con --derivar\: y el texto de cada paso]' \
    '--programa=[escribe las instrucciones en que se traduce F]:F(X):' \
    '--muestrear=[escribe los puntos de la gráfica]:F(X):' \
    '--tabla=[escribe X y F(X) en cada punto]:F(X):' \
    '(--xmin)--xmín=[comienzo del intervalo de X]:valor:' \
    '(--xmax)--xmáx=[final del intervalo de X]:valor:' \
    '(--ymin)--ymín=[comienzo del intervalo de Y]:valor:' \
    '(--ymax)--ymáx=[final del intervalo de Y]:valor:' \
    '(--xmín)--xmin=[comienzo del intervalo de X]:valor:' \
    '(--xmáx)--xmax=[final del intervalo de X]:valor:' \
    '(--ymín)--ymin=[comienzo del intervalo de Y]:valor:' \
    '(--ymáx)--ymax=[final del intervalo de Y]:valor:' \
    '--puntos=[partes iguales del intervalo de X]:partes:' \
    '--listar[escribe los textos de las órdenes]' \
    '--largo[con --listar\: y título, datos y ejemplo]' \
    '(- *)'{-h,--ayuda}'[escribe la ayuda]' \
    '(- *)'{-V,--version}'[escribe la versión]' \
    '*:hoja:_files'
