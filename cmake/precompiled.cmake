# Headers of the standard library, the test library and the toolkit, read once for many sources. Only the sanitized build takes
# them; every other build, and clang-tidy, reads each source by itself, so a missing include is found there.

set(PITCHCRAFT_STANDARD_HEADERS
  <algorithm> <array> <cmath> <cstdint> <cstdio> <cstdlib> <filesystem> <fstream> <functional> <limits> <map> <memory>
  <optional> <set> <sstream> <string> <string_view> <utility> <variant> <vector>)
set(PITCHCRAFT_WINDOW_HEADERS
  <QAction> <QApplication> <QBoxLayout> <QCheckBox> <QClipboard> <QComboBox> <QDialog> <QDialogButtonBox> <QFile> <QFileDialog>
  <QFontInfo> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QMenuBar> <QMessageBox> <QMimeData> <QPainter> <QPushButton>
  <QString> <QStyle> <QTabWidget> <QTimer> <QToolButton> <QWidget>)
set(PITCHCRAFT_TEST_HEADERS <gmock/gmock.h> <gtest/gtest.h>)
set(PITCHCRAFT_WINDOW_TEST_HEADERS <QInputDialog> <QTableView> <QTemporaryDir>)

# pitchcraft_precompile(TARGET [WINDOW] [TEST]): the target takes the headers that its kind has in common. WINDOW says that it
# uses widgets. The headers fit only what is compiled with the same flags, so what uses the toolkit without its widgets takes none.
function(pitchcraft_precompile target)
  if(NOT PITCHCRAFT_SANITIZE)
    return()
  endif()
  cmake_parse_arguments(FOR "WINDOW;TEST" "" "" ${ARGN})
  set(headers ${PITCHCRAFT_STANDARD_HEADERS})
  set(shared pitchcraft_headers)
  set(uses pitchcraft_options)
  if(FOR_WINDOW)
    list(APPEND headers ${PITCHCRAFT_WINDOW_HEADERS})
    list(APPEND uses Qt6::Widgets)
    string(APPEND shared _window)
  endif()
  if(FOR_TEST)
    list(APPEND headers ${PITCHCRAFT_TEST_HEADERS})
    list(APPEND uses GTest::gmock)
    string(APPEND shared _test)
  endif()
  if(FOR_WINDOW AND FOR_TEST)
    list(APPEND headers ${PITCHCRAFT_WINDOW_TEST_HEADERS})
  endif()

  if(NOT TARGET ${shared})
    set(nothing ${PROJECT_BINARY_DIR}/${shared}.cpp)
    file(CONFIGURE OUTPUT ${nothing} CONTENT "")
    add_library(${shared} OBJECT ${nothing})
    set_target_properties(${shared} PROPERTIES PITCHCRAFT_IS_TEST ${FOR_TEST} PITCHCRAFT_IS_WINDOW ${FOR_WINDOW})
    target_link_libraries(${shared} PRIVATE ${uses})
    target_precompile_headers(${shared} PRIVATE ${headers})
  endif()
  set_target_properties(${target} PROPERTIES PITCHCRAFT_IS_WINDOW ${FOR_WINDOW})
  target_precompile_headers(${target} REUSE_FROM ${shared})
  foreach(one ${shared} ${target})
    # Without it ccache cannot tell which headers a source has read.
    target_compile_options(${one} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endforeach()
endfunction()
