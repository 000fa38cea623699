"""The Debian package that scripts/package.sh built: scripts/check-package.sh, its
dependencies and files, and the installed program starting the installed companions."""

import glob
import os
import subprocess
import sys
import tempfile

import e2e_program

INSTALLED = [f"usr/libexec/vorkan-mac/{name}" for name in ("lumetra.app", "pendulo.app")]
INSTALLED += [f"usr/share/{path}" for path in (
    "applications/vorkan-mac.desktop", "metainfo/org.example.vorkan.mac.metainfo.xml",
    "man/man1/vorkan-mac.1.gz", "man/fr/man1/vorkan-mac.1.gz", "doc/vorkan-mac/copyright",
    "doc/vorkan-mac/changelog.gz", "doc/vorkan-mac/formulas.md.gz",
    "icons/hicolor/scalable/apps/vorkan-mac.svg",
    *(f"icons/hicolor/{size}x{size}/apps/vorkan-mac.png" for size in (48, 64, 128, 256)))]
# Read off the programs, and the two that they load by name at run time.
NEEDED = ("libqt6widgets6", "libqt6gui6", "libqt6core6", "qt6-qpa-plugins", "fonts-dejavu-core")


def main(package_dir):
    subprocess.run([os.path.join(os.path.dirname(__file__), "../../scripts/check-package.sh"),
                    package_dir], check=True)
    [package] = glob.glob(os.path.join(package_dir, "vorkan-mac_*.deb"))
    depends = subprocess.run(["dpkg-deb", "-f", package, "Depends"], check=True,
                             capture_output=True, text=True).stdout
    assert all(name in depends for name in NEEDED), f"{NEEDED} not all in {depends}"
    with tempfile.TemporaryDirectory() as root:
        subprocess.run(["dpkg-deb", "-x", package, root], check=True)
        for path in INSTALLED:
            assert os.path.isfile(os.path.join(root, path)), f"{path} is not installed"
        # The command is a link to the program, which starts the companions from its folder.
        command = os.path.join(root, "usr/bin/vorkan-mac")
        assert e2e_program.main(command, e2e_program.COMPANIONS) == 0, "the companions failed"
    print("e2e_package: 1 passed, 0 failed")


if __name__ == "__main__":
    main(sys.argv[1])
