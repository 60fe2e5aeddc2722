# What every target of our own is compiled with. Third-party headers come in as system headers.
add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wformat=2 -Wconversion -Wshadow -Wold-style-cast -Werror)
target_compile_definitions(project_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(VORLIN_SANITIZE)
    target_compile_options(project_options INTERFACE
        -fsanitize=${VORLIN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(project_options INTERFACE -fsanitize=${VORLIN_SANITIZE})
endif()

# Qt Core headers that nearly every source needs; widgets stay out, so that lower layers cannot use them unseen.
function(use_precompiled_headers target)
    target_precompile_headers(${target} PRIVATE
        <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QList> <QMap> <QObject> <QSettings> <QString>
        <QStringList> <QThread> <QVector> <array> <atomic> <condition_variable> <functional> <memory> <mutex>
        <optional> <vector>)
endfunction()
