"""check_install.py TREE CHECK: one look at the program installed under TREE. Exit code 77: skipped."""

import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

APP_ID = "example.zelvor.Zelvor"
MIME_TYPE = "application/x-zelvor-project"
MIME_NAMESPACE = "{http://www.freedesktop.org/standards/shared-mime-info}"

tree = pathlib.Path(sys.argv[1])
share = tree / "usr/share"
cli = tree / "usr/bin/zelvor-cli"
has_desktop = (tree / "usr/bin/zelvor").exists()


def need(tool):
    if not shutil.which(tool):
        print(f"skipped: {tool} is not installed")
        sys.exit(77)


def output_of(*command, **options):
    done = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    assert done.returncode == 0, f"{command[0]} failed:\n{done.stdout}"
    return done.stdout


def png_size(path):
    content = path.read_bytes()
    assert content.startswith(b"\x89PNG\r\n\x1a\n"), f"{path} is no PNG"
    return struct.unpack(">II", content[16:24])


def menu_entry():
    lines = (share / f"applications/{APP_ID}.desktop").read_text(encoding="utf-8").splitlines()
    return dict(line.split("=", 1) for line in lines if "=" in line)


def everyFileIsInItsPlace():
    expected = {
        "bin/zelvor-cli",
        "libexec/zelvor/zelvor-cli-pages",
        "share/man/man1/zelvor-cli.1",
        f"share/applications/{APP_ID}.desktop",
        f"share/metainfo/{APP_ID}.metainfo.xml",
        f"share/mime/packages/{APP_ID}.xml",
        f"share/icons/hicolor/scalable/apps/{APP_ID}.svg",
        f"share/icons/hicolor/48x48/apps/{APP_ID}.png",
        f"share/icons/hicolor/128x128/apps/{APP_ID}.png",
        "share/icons/hicolor/scalable/mimetypes/application-x-zelvor-project.svg",
    }
    if has_desktop:
        expected |= {"bin/zelvor", "share/man/man1/zelvor.1"}
    usr = tree / "usr"
    found = {str(path.relative_to(usr)) for path in tree.rglob("*") if not path.is_dir()}
    assert found == expected, f"missing {expected - found}, unexpected {found - expected}"
    for size in (48, 128):
        assert png_size(share / f"icons/hicolor/{size}x{size}/apps/{APP_ID}.png") == (size, size)
    assert os.access(cli, os.X_OK)


def theMenuEntryIsValid():
    need("desktop-file-validate")
    assert output_of("desktop-file-validate", str(share / f"applications/{APP_ID}.desktop")) == ""


def theEntryOfTheSoftwareCatalogueIsValid():
    need("appstreamcli")
    output_of("appstreamcli", "validate", "--no-net", str(share / f"metainfo/{APP_ID}.metainfo.xml"))


def theIdentifierIsTheSameEverywhere():
    entry = menu_entry()
    assert entry["Icon"] == APP_ID
    assert entry["MimeType"] == MIME_TYPE + ";"
    assert entry["Exec"] == "zelvor %f"
    component = ElementTree.parse(share / f"metainfo/{APP_ID}.metainfo.xml").getroot()
    assert component.findtext("id") == APP_ID
    assert component.findtext("launchable") == f"{APP_ID}.desktop"
    assert component.findtext("provides/mediatype") == MIME_TYPE
    if has_desktop:  # windows are matched with the menu entry by this text, which Qt programs hold in UTF-16
        assert APP_ID.encode("utf-16-le") in (tree / "usr/bin/zelvor").read_bytes()
    version = output_of(str(cli), "--version").split()[-1]
    assert component.find("releases/release").get("version") == version
    kind = ElementTree.parse(share / f"mime/packages/{APP_ID}.xml").getroot()[0]
    assert kind.get("type") == MIME_TYPE
    assert int(kind.find(f"{MIME_NAMESPACE}glob").get("weight")) > 50


def theManPagesAreFormattedWithoutAWarning():
    need("groff")
    for page in sorted((share / "man/man1").iterdir()):
        said = output_of("groff", "-man", "-ww", "-z", "-Tutf8", str(page))
        assert said == "", f"{page.name}: {said}"
        version = output_of(str(cli), "--version").split()[-1]
        assert f'"Zelvor {version}"' in page.read_text(encoding="utf-8").splitlines()[0], f"{page.name} is old"


def theManPageKnowsWhatTheHelpKnows():
    """Every command, option and report that --help names stands in the page."""
    page = (share / "man/man1/zelvor-cli.1").read_text(encoding="utf-8").replace("\\-", "-").replace("\\~", " ")
    overview = output_of(str(cli), "--help")
    commands = re.findall(r"^  ([a-z-]+)  ", overview, re.MULTILINE)
    assert len(commands) > 5, overview
    words = set(commands)
    for command in commands:
        words |= set(re.findall(r"--?[a-z][a-z-]*", output_of(str(cli), command, "--help")))
    reports = re.findall(r"^  ([a-z][a-z-]+)(?= |$)", output_of(str(cli), "report", "--help"), re.MULTILINE)
    assert len(reports) > 2, reports
    missing = [word for word in words | set(reports) if not re.search(re.escape(word) + r"(?![a-z-])", page)]
    assert not missing, f"the man page does not know {missing}"


def theExampleOfTheManPageWorks():
    page = (share / "man/man1/zelvor-cli.1").read_text(encoding="utf-8").replace("\\(dq", '"').replace("\\-", "-")
    operations = re.search(r"<<'END'\n(.*?)END\n", page, re.DOTALL).group(1)
    assert operations.count('"do"') == 5, operations
    with tempfile.TemporaryDirectory() as folder:
        project = f"{folder}/shop.pdb"
        output_of(str(cli), "create", project, "--currency", "EUR")
        answers = output_of(str(cli), "apply", project, input=operations)
        assert answers.count('"confirmed":true') == 2, answers


def contentType(path, data_home):
    environment = os.environ | {
        "XDG_DATA_HOME": data_home,
        "XDG_DATA_DIRS": f"{share}:/usr/local/share:/usr/share",
    }
    said = output_of("gio", "info", "-a", "standard::content-type", str(path), env=environment)
    return re.search(r"standard::content-type: (\S+)", said).group(1)


def aProjectIsRecognisedByNameAndByContent():
    need("update-mime-database")
    need("gio")
    if not pathlib.Path("/usr/share/mime/packages/freedesktop.org.xml").exists():
        print("skipped: shared-mime-info is not installed")
        sys.exit(77)
    with tempfile.TemporaryDirectory() as folder:
        mime = pathlib.Path(folder) / "home/mime"
        shutil.copytree(share / "mime", mime)
        output_of("update-mime-database", str(mime))
        home = str(mime.parent)

        project = pathlib.Path(folder) / "shop.pdb"
        output_of(str(cli), "create", str(project))
        assert contentType(project, home) == MIME_TYPE
        renamed = project.with_name("renamed")
        shutil.copy(project, renamed)
        assert contentType(renamed, home) == MIME_TYPE

        # Another program's SQLite file, and a project that lost its mark: told by the name alone.
        unmarked = bytearray(project.read_bytes())
        unmarked[68:72] = b"\0\0\0\0"
        project.with_name("other").write_bytes(unmarked)
        assert contentType(project.with_name("other"), home) == "application/vnd.sqlite3"
        project.with_name("unmarked.pdb").write_bytes(unmarked)
        assert contentType(project.with_name("unmarked.pdb"), home) == MIME_TYPE


CHECKS = [
    everyFileIsInItsPlace,
    theMenuEntryIsValid,
    theEntryOfTheSoftwareCatalogueIsValid,
    theIdentifierIsTheSameEverywhere,
    theManPagesAreFormattedWithoutAWarning,
    theManPageKnowsWhatTheHelpKnows,
    theExampleOfTheManPageWorks,
    aProjectIsRecognisedByNameAndByContent,
]
{check.__name__: check for check in CHECKS}[sys.argv[2]]()
