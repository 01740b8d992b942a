# Headers that many sources include are compiled once for all of them. Each source still includes what it
# needs, because a build without LS_PRECOMPILE needs that.
#
# The test framework and the toolkit cost seconds for each source that includes them, the library half a
# second.
set(LS_LIBRARY_HEADERS <algorithm> <array> <charconv> <cmath> <cstdint> <functional> <limits> <memory> <optional> <ostream> <set>
    <string> <string_view> <unordered_map> <unordered_set> <utility> <vector>)
set(LS_TOOLKIT_HEADERS <QAbstractItemView> <QApplication> <QComboBox> <QDialog> <QElapsedTimer> <QKeyEvent> <QLabel> <QLineEdit>
    <QListWidget> <QMainWindow> <QMenu> <QMenuBar> <QMessageBox> <QPainter> <QPlainTextEdit> <QPointer> <QPushButton>
    <QScrollBar> <QString> <QTimer> <QWidget>)
set(LS_TEST_HEADERS <gtest/gtest.h> <filesystem> <fstream> "${CMAKE_SOURCE_DIR}/tests/support/TestSeams.h")
set(LS_TOOLKIT_TEST_HEADERS <QGroupBox> <QRadioButton> <QTest>)

# Templates used in the compiled headers are instantiated there, once for all sources.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(CMAKE_PCH_INSTANTIATE_TEMPLATES ON)
endif()

# ls_precompile(TARGET HEADER...): compiles these headers for the target's sources.
function(ls_precompile target)
  if(LS_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# ls_share_precompiled(TARGET OWNER): the target uses the owner's compiled headers. Both need the same flags,
# except for macros that those headers do not mention.
function(ls_share_precompiled target owner)
  if(LS_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()
