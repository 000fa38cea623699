#!/usr/bin/env bash
# sign.sh FOLDER URL FILE...: signs Windows programs, libraries and installers in place
# (Authenticode, SHA-256), then checks each signature. The certificate is the PKCS#12
# file in VORKAN_SIGN_PKCS12, whose password is in VORKAN_SIGN_PASSWORD; with
# VORKAN_SIGN_TIMESTAMP, a time-stamping server (RFC 3161) dates each signature, so
# that it outlives the certificate. Without a certificate, a throwaway one of a
# throwaway authority, made in FOLDER unless already there, signs instead: the signing
# and its checks are then tested, and the files are fit for testing only. The checks
# trust the authorities in FOLDER/trusted.pem. URL is the program's web page, which the
# signature names.
set -euo pipefail
folder=$1 url=$2
shift 2

# A code-signing certificate of its own authority, which checking then trusts.
throwaway_certificate() {
    [[ ! -f $folder/signer.p12 ]] || return 0
    mkdir -p "$folder"
    cd "$folder"
    local extensions=(-addext basicConstraints=critical,CA:TRUE
        -addext keyUsage=critical,keyCertSign)
    openssl req -x509 -newkey rsa:2048 -nodes -days 7 -keyout ca.key -out ca.pem \
        -subj "/CN=Vorkan MAC test authority" "${extensions[@]}" 2>/dev/null
    openssl req -newkey rsa:2048 -nodes -keyout signer.key -out signer.csr \
        -subj "/CN=Vorkan MAC test signer" 2>/dev/null
    printf '%s\n' basicConstraints=CA:FALSE keyUsage=critical,digitalSignature \
        extendedKeyUsage=codeSigning >signer.ext
    openssl x509 -req -in signer.csr -CA ca.pem -CAkey ca.key -days 7 \
        -set_serial "0x$(openssl rand -hex 8)" -extfile signer.ext -out signer.pem 2>/dev/null
    openssl pkcs12 -export -inkey signer.key -in signer.pem -certfile ca.pem \
        -passout pass:test -out signer.p12
    cd - >/dev/null
}

# The checks trust the system's authorities and those that come with the certificate
# (an organisation's own, say). Older PKCS#12 files need OpenSSL's legacy ciphers.
certificate_authorities() {
    cat /etc/ssl/certs/ca-certificates.crt 2>/dev/null || true
    local legacy
    for legacy in "" -legacy; do
        printf '%s' "$password" | openssl pkcs12 -in "$pkcs12" -cacerts -nokeys \
            -passin stdin $legacy 2>/dev/null && return
    done
}

if [[ -n ${VORKAN_SIGN_PKCS12:-} ]]; then
    pkcs12=$VORKAN_SIGN_PKCS12 password=${VORKAN_SIGN_PASSWORD:-}
    mkdir -p "$folder"
    certificate_authorities >"$folder/trusted.pem"
else
    throwaway_certificate
    pkcs12=$folder/signer.p12 password=test
    cp "$folder/ca.pem" "$folder/trusted.pem"
    echo "  no VORKAN_SIGN_PKCS12: signing with a throwaway test certificate" >&2
fi
timestamp=()
[[ -z ${VORKAN_SIGN_TIMESTAMP:-} ]] || timestamp=(-ts "$VORKAN_SIGN_TIMESTAMP")

for file in "$@"; do
    # The password goes through a pipe, never on a command line that others can read.
    osslsigncode sign -pkcs12 "$pkcs12" -readpass <(printf '%s' "$password") -h sha256 \
        -n "Vorkan MAC" -i "$url" "${timestamp[@]}" -in "$file" -out "$file.signed" >/dev/null
    mv "$file.signed" "$file"
    if ! osslsigncode verify -CAfile "$folder/trusted.pem" -in "$file" >"$file.verify" 2>&1; then
        cat "$file.verify" >&2
        echo "$file: the signature does not verify" >&2
        exit 1
    fi
    rm "$file.verify"
done
