"""Certificates made for one run: an authority that the user of the stage trusts, a good one of it, and three bad ones."""

import ctypes
import pathlib
import subprocess

HOST = "127.0.0.1"


class _Trust(ctypes.Structure):
    _fields_ = [("ssl", ctypes.c_uint), ("email", ctypes.c_uint), ("signing", ctypes.c_uint)]


VALID_AND_TRUSTED_AUTHORITY = 1 << 3 | 1 << 4   # CERTDB_VALID_CA, CERTDB_TRUSTED_CA


def _openssl(*words, text=""):
    subprocess.run(["openssl", *map(str, words)], input=text, text=True, check=True, capture_output=True)


def _request(folder, name, host):
    _openssl("req", "-newkey", "rsa:2048", "-nodes", "-keyout", folder / f"{name}.key", "-out", folder / f"{name}.csr",
             "-subj", f"/CN={host}")


def _sign(folder, name, host, begin, end):
    kind = "IP" if host[0].isdigit() else "DNS"
    extensions = folder / f"{name}.ext"
    extensions.write_text(f"subjectAltName={kind}:{host}\n", encoding="ascii")
    data = folder / "authority"
    data.mkdir(exist_ok=True)
    (data / "index").touch()
    configuration = folder / "authority.cnf"
    configuration.write_text(
        f"[ca]\ndefault_ca=a\n[a]\ndatabase={data}/index\nnew_certs_dir={data}\nrand_serial=yes\ndefault_md=sha256\n"
        "policy=p\nunique_subject=no\n[p]\ncommonName=supplied\n", encoding="ascii")
    _openssl("ca", "-batch", "-notext", "-config", configuration, "-cert", folder / "root.crt", "-keyfile",
             folder / "root.private", "-in", folder / f"{name}.csr", "-out", folder / f"{name}.pem", "-extfile", extensions,
             "-startdate", begin, "-enddate", end)


def make(folder):
    """Pairs NAME.key and NAME.pem: good, expired, wronghost and selfsigned; `root.crt` is the authority."""
    folder = pathlib.Path(folder)
    folder.mkdir()
    _openssl("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", folder / "root.private", "-out", folder / "root.crt",
             "-days", "30", "-subj", "/CN=Authority of the stage", "-addext", "basicConstraints=critical,CA:TRUE")
    for name, host, begin, end in (("good", HOST, "20200101000000Z", "20991231235959Z"),
                                   ("expired", HOST, "20200101000000Z", "20210101000000Z"),
                                   ("wronghost", "other.example", "20200101000000Z", "20991231235959Z")):
        _request(folder, name, host)
        _sign(folder, name, host, begin, end)
    _openssl("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", folder / "selfsigned.key", "-out",
             folder / "selfsigned.pem", "-days", "30", "-subj", f"/CN={HOST}", "-addext", f"subjectAltName=IP:{HOST}")
    return folder


def trust(home, authority):
    """Puts an authority into the user's own store of certificates, which the page engine reads."""
    store = pathlib.Path(home) / ".pki" / "nssdb"
    store.mkdir(parents=True, exist_ok=True)
    data = subprocess.run(["openssl", "x509", "-in", str(authority), "-outform", "DER"], check=True,
                          capture_output=True).stdout
    # In a process of its own: the library keeps its store open for good.
    subprocess.run(["/usr/bin/python3", __file__, str(store)], input=data, check=True)


def _put_into(store, data):
    nss = ctypes.CDLL("libsmime3.so")    # with libnss3 below it
    for name in ("PK11_GetInternalKeySlot", "CERT_DecodeCertFromPackage", "CERT_GetDefaultCertDB"):
        getattr(nss, name).restype = ctypes.c_void_p
    if nss.NSS_InitReadWrite(f"sql:{store}".encode()) != 0:
        raise OSError(f"no store of certificates in {store}")
    slot = ctypes.c_void_p(nss.PK11_GetInternalKeySlot())
    if nss.PK11_NeedUserInit(slot):
        nss.PK11_InitPin(slot, None, b"")
    certificate = ctypes.c_void_p(nss.CERT_DecodeCertFromPackage(ctypes.c_char_p(data), len(data)))
    if nss.PK11_ImportCert(slot, certificate, ctypes.c_ulong(0), b"stage", 0) != 0:
        raise OSError("the certificate was not taken")
    wanted = _Trust(VALID_AND_TRUSTED_AUTHORITY, 0, 0)
    if nss.CERT_ChangeCertTrust(ctypes.c_void_p(nss.CERT_GetDefaultCertDB()), certificate, ctypes.byref(wanted)) != 0:
        raise OSError("the certificate is not trusted")
    nss.NSS_Shutdown()


if __name__ == "__main__":
    import sys

    _put_into(sys.argv[1], sys.stdin.buffer.read())
