# What every target of our own is compiled with. Third-party headers come in as system headers.
add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wformat=2 -Wconversion -Wshadow -Wold-style-cast -Werror)
target_compile_definitions(project_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(VORLIN_SANITIZE)
    # In instrumented code GCC takes the inside of an empty std::optional for a value that is used; it says so itself in
    # its manual. The other builds have the warning.
    target_compile_options(project_options INTERFACE -Wno-maybe-uninitialized
        -fsanitize=${VORLIN_SANITIZE} -fno-omit-frame-pointer -fno-optimize-sibling-calls -fno-sanitize-recover=all)
    target_link_options(project_options INTERFACE -fsanitize=${VORLIN_SANITIZE})
endif()

# Qt Core headers that nearly every source needs, compiled once for all targets (each of its own would take longer than
# it saves); widgets stay out, so that lower layers cannot use them unseen.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "")
add_library(precompiled_headers OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
target_link_libraries(precompiled_headers PRIVATE Qt5::Core project_options)
set_target_properties(precompiled_headers PROPERTIES AUTOMOC OFF)
target_precompile_headers(precompiled_headers PRIVATE
    <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QList> <QMap> <QObject> <QSettings> <QString>
    <QStringList> <QThread> <QVector> <array> <atomic> <condition_variable> <functional> <memory> <mutex>
    <optional> <vector>)

function(use_precompiled_headers target)
    target_precompile_headers(${target} REUSE_FROM precompiled_headers)
endfunction()
