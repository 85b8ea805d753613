rem Change these settings. The other batch files of this folder read them.

rem The product's name, which is also the name of its folder below Program Files.
set "product=Brindle"
rem The product's name on the list in which sorrel.exe records the applications that use the hands-free service. The name
rem must be the same for all versions, and must not be part of another application's name.
set "application=brindle"
rem The driver package's INF file, the certificate of the package's signer, and that of the issuing authority.
set "inf=Tessalin.inf"
set "publisher=trusted.cer"
set "intermediate=trusted_i.cer"
rem What happens if the radio is missing or off. With "fails", the installation fails; with "spared", only this failure
rem is ignored.
set "radio_off=fails"
