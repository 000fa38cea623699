"""The Debian package, built with CPack and unpacked into a clean folder: its files, its
dependencies, and the installed program starting the installed companions."""

import os
import subprocess
import sys
import tempfile

import e2e_program

INSTALLED = [f"usr/share/{path}" for path in ("applications/vorkan-mac.desktop",
                                               "metainfo/org.example.vorkan.mac.metainfo.xml",
                                               "icons/hicolor/scalable/apps/vorkan-mac.svg")]
INSTALLED += [f"usr/libexec/vorkan-mac/{name}" for name in ("lumetra.app", "pendulo.app",
                                                             "vorkan-mac")]


def main(build_dir):
    with tempfile.TemporaryDirectory() as work:
        subprocess.run(["cpack", "-G", "DEB", "-B", work, "--config",
                        os.path.join(build_dir, "CPackConfig.cmake")], check=True,
                       stdout=subprocess.DEVNULL)
        packages = [os.path.join(work, name) for name in os.listdir(work) if name.endswith(".deb")]
        assert len(packages) == 1, f"cpack made {packages}"
        depends = subprocess.run(["dpkg-deb", "-f", packages[0], "Depends"], check=True,
                                 capture_output=True, text=True).stdout
        for needed in ("libqt6widgets6", "libqt6gui6", "libqt6core6", "qt6-qpa-plugins"):
            assert needed in depends, f"the package does not depend on {needed}: {depends}"
        root = os.path.join(work, "root")
        subprocess.run(["dpkg", "-x", packages[0], root], check=True)
        for path in INSTALLED:
            assert os.path.isfile(os.path.join(root, path)), f"{path} is not installed"
        command = os.path.join(root, "usr/bin/vorkan-mac")
        assert os.path.realpath(command) == os.path.realpath(os.path.join(root, INSTALLED[-1]))
        assert e2e_program.main(command, e2e_program.COMPANIONS) == 0, "the companions failed"
    print("e2e_package: 1 passed, 0 failed")


if __name__ == "__main__":
    main(sys.argv[1])
