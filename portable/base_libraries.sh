# The shared libraries the planner on a drive takes from the computer it runs on, and why.
# Everything else the program and its plugins need is copied into DRIVE/exec/lib. What a
# library of this list needs in turn comes from the computer too: it belongs with the
# library that loads it (scripts/make_drive follows only the libraries it copies).
# Sourced by scripts/make_drive and by the drive checks in tests/drive.
QH_BASE_LIBRARIES=(
    # The C library and the dynamic loader: they must match the kernel interface and each
    # other, and a copy would replace the computer's loader. The launcher checks the version.
    'ld-linux*.so*'          # the dynamic loader itself
    'linux-vdso.so*'         # provided by the kernel, no file at all
    'libc.so.*'              # the C library (glibc), versioned symbols: newer ones load older programs
    'libm.so.*'              # part of glibc
    'libdl.so.*'             # part of glibc
    'libpthread.so.*'        # part of glibc
    'librt.so.*'             # part of glibc
    'libresolv.so.*'         # part of glibc
    # The compiler's run-time: every desktop has it, and a second copy in one process breaks
    # exceptions across libraries the computer loads (GL drivers link it too).
    'libstdc++.so.*'         # the C++ run-time, versioned symbols, newer ones load older programs
    'libgcc_s.so.*'          # the compiler's support library, beside libstdc++
    # The X display: the libraries speak the computer's own X server protocol and come with
    # every X or XWayland desktop; the xcb-util helpers that are not always there are copied.
    'libX11.so.*'            # the X client library
    'libX11-xcb.so.*'        # part of libX11
    'libXau.so.*'            # X authorisation, a dependency of libxcb
    'libXdmcp.so.*'          # X display manager protocol, a dependency of libxcb
    'libXext.so.*'           # X extensions, part of every X installation
    'libXrender.so.*'        # X render extension, part of every X installation
    'libSM.so.*'             # X session management: the desktop's session manager talks through it
    'libICE.so.*'            # the transport of libSM
    'libxcb.so.*'            # the X protocol library
    'libxcb-glx.so.*'        # an extension library of libxcb, installed with it
    'libxcb-randr.so.*'      # an extension library of libxcb, installed with it
    'libxcb-render.so.*'     # an extension library of libxcb, installed with it
    'libxcb-shape.so.*'      # an extension library of libxcb, installed with it
    'libxcb-shm.so.*'        # an extension library of libxcb, installed with it
    'libxcb-sync.so.*'       # an extension library of libxcb, installed with it
    'libxcb-xfixes.so.*'     # an extension library of libxcb, installed with it
    'libxcb-xkb.so.*'        # an extension library of libxcb, installed with it
    'libxcb-dri2.so.*'       # an extension library of libxcb, used by the GL drivers
    'libxcb-dri3.so.*'       # an extension library of libxcb, used by the GL drivers
    'libxcb-present.so.*'    # an extension library of libxcb, used by the GL drivers
    'libxkbcommon.so.*'      # the keyboard layouts: it reads the computer's own layout files
    'libxkbcommon-x11.so.*'  # part of libxkbcommon
    # OpenGL and EGL: the dispatch libraries load the computer's graphics drivers, which must
    # match its hardware and kernel.
    'libGL.so.*'             # the OpenGL dispatch library
    'libGLX.so.*'            # the OpenGL dispatch library for X
    'libGLdispatch.so.*'     # the OpenGL dispatch library
    'libOpenGL.so.*'         # the OpenGL dispatch library
    'libEGL.so.*'            # the EGL dispatch library
    # The text stack: it reads the computer's fonts and font caches, whose formats follow the
    # computer's own versions; the desktop's other programs load the same libraries.
    'libfontconfig.so.*'     # font lookup, with the computer's font configuration and caches
    'libfreetype.so.*'       # font rasterising, beside fontconfig
    'libharfbuzz.so.*'       # text shaping, linked by the desktop's toolkits beside freetype
    'libglib-2.0.so.*'       # the desktop's event and utility library: the GTK theme and the
    'libgobject-2.0.so.*'    # input methods load the computer's copy, which must be the only one
    'libgio-2.0.so.*'        # part of GLib
    'libgmodule-2.0.so.*'    # part of GLib
    # The compression libraries the libraries above load: one copy per process, the computer's.
    'libz.so.*'              # zlib, loaded by freetype, libpng and the GL drivers
    'libzstd.so.*'           # zstd, loaded by systemd's library and the GL drivers
    'libpng16.so.*'          # PNG, loaded by freetype
    # Services of the computer: the client library must speak its running daemon's protocol.
    'libdbus-1.so.*'         # the D-Bus message bus of the session (notifications, accessibility)
    'libcups.so.*'           # the CUPS client: printers are the computer's
    # The GTK 3 desktop theme plugin is useful only where GTK 3 is installed: it uses the
    # computer's GTK and what GTK loads, and Qt goes on without it where there is none.
    'libgtk-3.so.*'          # GTK 3, for the desktop theme plugin
    'libgdk-3.so.*'          # part of GTK 3
    'libgdk_pixbuf-2.0.so.*' # loaded by GTK 3
    'libpango-1.0.so.*'      # loaded by GTK 3
    'libpangocairo-1.0.so.*' # loaded by GTK 3
    'libcairo.so.*'          # loaded by GTK 3
    'libcairo-gobject.so.*'  # loaded by GTK 3
    'libatk-1.0.so.*'        # loaded by GTK 3
)

# Whether the library file NAME is one the computer provides.
qh_is_base_library() {
    local pattern
    for pattern in "${QH_BASE_LIBRARIES[@]}"; do
        # shellcheck disable=SC2053  # the pattern is a glob on purpose
        [[ $1 == $pattern ]] && return 0
    done
    return 1
}
