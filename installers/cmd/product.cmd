rem Change these settings for your product. The other batch files in this folder read them.

rem The product's name, which is also the name of its folder below Program Files.
set "product=Brindle"
rem sorrel.exe keeps a list of the applications that use the hands-free service. This is the product's name on the list.
rem The name must be the same for all versions of the product, and must not be part of another application's name.
set "application=brindle"
rem The driver package's INF file, the certificate of the package's signer, and the certificate of the authority that
rem issued the signer's certificate.
set "inf=Tessalin.inf"
set "publisher=trusted.cer"
set "intermediate=trusted_i.cer"
rem What happens if the Bluetooth radio is missing or off. With "fails", the installation fails. With "spared", the
rem installation ignores the resulting error, but no other error.
set "radio_off=fails"
